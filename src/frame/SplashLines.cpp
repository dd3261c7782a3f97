#include "SplashLines.h"

#include <QEvent>
#include <QTextBlock>
#include <QTextCursor>

#include "PanelLook.h"
#include <dialogs/DialogTheme.h>
#include <dialogs/FingerScroll.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostLines = 1000;
/// The state of a block of text that is an error.
constexpr int ErrorState = 1;

} // namespace

SplashLines::SplashLines(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(u"SplashLines"_s);
    setReadOnly(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(MostLines);
    setFont(PanelLook::font(font(), DialogTheme::fontSize));
    document()->setDocumentMargin(DialogTheme::spacing);
    setAccessibleName(tr("Start-up messages"));
    new FingerScroll(this);
}

void SplashLines::addLine(const QString &line, bool error)
{
    const QStringList parts = line.split(u'\n');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const bool isMarked = error && i == 0;
        appendPlainText(isMarked ? u"\u2716 "_s + parts.at(i) : parts.at(i));
        document()->lastBlock().setUserState(error ? ErrorState : 0);
    }
    colourErrors(document()->blockCount() - int(parts.size()));
}

void SplashLines::addLines(const QStringList &lines)
{
    for (const QString &line : lines) {
        addLine(line);
    }
}

/// From the block with that number on.
void SplashLines::colourErrors(int first)
{
    QTextCharFormat plain;
    QTextCharFormat error;
    plain.setForeground(palette().text());
    error.setForeground(PanelLook::errorInk(palette().color(QPalette::Base)));
    QTextBlock block = document()->findBlockByNumber(std::max(first, 0));
    for (; block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.setCharFormat(block.userState() == ErrorState ? error : plain);
    }
}

void SplashLines::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        colourErrors(0);
    } else if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Start-up messages"));
    }
}
