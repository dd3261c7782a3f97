#include "ConflictQuestions.h"

#include <QWidget>

#include "ConflictDialog.h"

ConflictQuestions::ConflictQuestions(QWidget *parent)
    : QObject(parent)
    , m_parent(parent)
{
}

ConflictQuestions::~ConflictQuestions()
{
    delete m_dialog;
}

void ConflictQuestions::askConflict(const FileConflict &conflict, Answer answer)
{
    // Lives on the transfer's thread, so that what is posted to it is answered there.
    const std::shared_ptr<QObject> mailbox(new QObject, [](QObject *box) { box->deleteLater(); });
    const Reply reply = [mailbox, answer = std::move(answer)](ConflictChoice choice, bool forAll) {
        QMetaObject::invokeMethod(
            mailbox.get(), [mailbox, answer, choice, forAll] { answer(choice, forAll); },
            Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(
        this, [this, conflict, reply] { show(conflict, reply); }, Qt::QueuedConnection);
}

void ConflictQuestions::withdraw()
{
    delete m_dialog;
}

void ConflictQuestions::show(const FileConflict &conflict, const Reply &reply)
{
    m_dialog = new ConflictDialog(conflict, m_parent);
    connect(m_dialog, &ConflictDialog::answered, this, reply);
    connect(m_dialog, &QDialog::finished, m_dialog, &QObject::deleteLater);
    m_dialog->open();
}
