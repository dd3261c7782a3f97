#pragma once

#include <QObject>
#include <QPointer>

#include "FileTransfer.h"

class ConflictDialog;
class QWidget;

/**
 * Puts a transfer's questions to a person: asked on the transfer's thread, shown on that of this
 * object, answered on the transfer's again.
 */
class ConflictQuestions : public QObject, public TransferQuestions
{
    Q_OBJECT

public:
    /** Dialogs are drawn in the window of @p parent. Must outlive the transfer. */
    explicit ConflictQuestions(QWidget *parent);
    ~ConflictQuestions() override;

    void askConflict(const FileConflict &conflict, Answer answer) override;
    /** Takes a question back whose transfer has ended. */
    void withdraw();

private:
    using Reply = std::function<void(ConflictChoice, bool)>;

    void show(const FileConflict &conflict, const Reply &reply);

    QWidget *m_parent;
    QPointer<ConflictDialog> m_dialog;
};
