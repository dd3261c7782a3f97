#include "ConflictDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>

#include "FilePaths.h"
#include "QvexFileModel.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int textWidth = 600;

QLabel *makeLabel(const QString &name, const QString &text, int pixelSize, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    label->setFont(font);
    label->setText(QFontMetrics(font).elidedText(text, Qt::ElideMiddle, textWidth));
    label->setAccessibleName(text);
    return label;
}

} // namespace

ConflictDialog::ConflictDialog(const FileConflict &conflict, QWidget *parent)
    : QvexDialog(parent, true, false)
    , m_forAll(new QCheckBox(tr("Do the same with all that follow"), this))
{
    setObjectName(u"ConflictDialog"_s);
    setWindowTitle(tr("File exists"));
    m_forAll->setObjectName(u"ConflictForAll"_s);
    m_forAll->setStyleSheet(u"QCheckBox { min-height: %1px; font-size: %2px; spacing: 12px; }"
                            "QCheckBox::indicator { width: 28px; height: 28px; border-radius: 5px;"
                            " border: 2px solid palette(window-text); }"
                            "QCheckBox::indicator:focus { border: 3px solid palette(highlight); }"
                            "QCheckBox::indicator:checked { background-color: #2b4257;"
                            " image: url(:/images/tick.png); }"_s.arg(DialogTheme::touchTarget)
                                .arg(DialogTheme::fontSize));
    auto *column = new QVBoxLayout(this);
    column->setSpacing(DialogTheme::spacing);
    column->addWidget(
        makeLabel(u"ConflictText"_s,
                  tr("\"%1\" is there already.").arg(FilePaths::shownNameOf(conflict.target)),
                  DialogTheme::messageFontSize, this));
    column->addWidget(makeComparison(conflict));
    column->addWidget(m_forAll);
    column->addWidget(makeButtons());
    DialogTheme::apply(this, &DialogTheme::buttonStyle);
}

QWidget *ConflictDialog::makeComparison(const FileConflict &conflict)
{
    auto *comparison = new QWidget(this);
    auto *grid = new QGridLayout(comparison);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * DialogTheme::spacing);
    grid->setColumnStretch(3, 1);
    int row = 0;
    const auto add = [&](const QString &name, const QString &kind, qint64 size,
                         const QString &date) {
        const int font = DialogTheme::fontSize;
        grid->addWidget(makeLabel(name, kind, font, comparison), row, 0);
        grid->addWidget(
            makeLabel(name + u"Size"_s, QvexFileModel::sizeText(size), font, comparison), row, 1,
            Qt::AlignRight);
        grid->addWidget(makeLabel(name + u"Date"_s, date, font, comparison), row, 2);
        ++row;
    };
    add(u"ConflictOld"_s, tr("There now"), conflict.targetSize, conflict.targetDate);
    add(u"ConflictNew"_s, tr("To be copied"), conflict.sourceSize, conflict.sourceDate);
    return comparison;
}

QWidget *ConflictDialog::makeButtons()
{
    auto *buttons = new QWidget(this);
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(DialogTheme::spacing);
    const std::tuple<QString, QString, ConflictChoice> choices[] {
        {u"ConflictOverwrite"_s, tr("Overwrite"), ConflictChoice::Overwrite},
        {u"ConflictSkip"_s, tr("Skip"), ConflictChoice::Skip},
        {u"ConflictKeepBoth"_s, tr("Keep both"), ConflictChoice::KeepBoth},
        {u"ConflictCancel"_s, tr("Cancel all"), ConflictChoice::Cancel},
    };
    for (const auto &[name, text, choice] : choices) {
        auto *button = new QPushButton(text, buttons);
        button->setObjectName(name);
        button->setAccessibleName(text);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, choice = choice] { answer(choice); });
        row->addWidget(button, 1);
        if (choice == ConflictChoice::Skip) {
            button->setDefault(true);
            button->setFocus();
        }
    }
    return buttons;
}

void ConflictDialog::answer(ConflictChoice choice)
{
    if (!std::exchange(m_answered, true)) {
        Q_EMIT answered(choice, m_forAll->isChecked());
        done(choice == ConflictChoice::Cancel ? Rejected : Accepted);
    }
}

void ConflictDialog::reject()
{
    answer(ConflictChoice::Cancel);
}

void ConflictDialog::hideEvent(QHideEvent *event)
{
    QvexDialog::hideEvent(event);
    if (!event->spontaneous()) {
        answer(ConflictChoice::Cancel);
    }
}
