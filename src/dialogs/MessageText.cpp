#include "MessageText.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include "DialogTheme.h"
#include "FingerScroll.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWord = 24;
constexpr QChar ZeroWidthSpace(0x200b);

/// Lets words that are too long for a line, paths for one, be wrapped.
QString breakable(const QString &text)
{
    QString result;
    int length = 0;
    for (const QChar c : text) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > LongestWord && !c.isLowSurrogate() && !c.isMark()) {
            result += ZeroWidthSpace;
            length = 1;
        }
        result += c;
    }
    return result;
}

QLabel *makeLabel(const QString &name, int fontSize, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(fontSize);
    label->setFont(font);
    return label;
}

} // namespace

MessageText::MessageText(QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName(u"MsgText"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto *page = new QWidget(this);
    m_label = makeLabel(u"MsgTextLabel"_s, DialogTheme::messageFontSize, page);
    m_informativeLabel = makeLabel(u"MsgInformativeLabel"_s, DialogTheme::fontSize, page);
    m_informativeLabel->hide();
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(DialogTheme::spacing);
    column->addStretch();
    column->addWidget(m_label);
    column->addWidget(m_informativeLabel);
    column->addStretch();
    setWidget(page);
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    new FingerScroll(this);
}

void MessageText::setText(const QString &text)
{
    m_text = text;
    m_label->setText(breakable(text));
    updateWidth();
}

void MessageText::setInformativeText(const QString &text)
{
    m_informativeText = text;
    m_informativeLabel->setText(breakable(text));
    m_informativeLabel->setVisible(!text.isEmpty());
    updateWidth();
}

void MessageText::updateWidth()
{
    m_width = 0;
    for (const QLabel *label : {m_label, m_informativeLabel}) {
        const QRect line = label->fontMetrics().boundingRect({}, Qt::AlignLeft, label->text());
        m_width = qMax(m_width, line.width() + 1);
    }
    m_width = qBound(DialogTheme::narrowestMessage, m_width, DialogTheme::widestMessage);
    updateGeometry();
}

QSize MessageText::sizeHint() const
{
    const int height = widget()->layout()->totalHeightForWidth(m_width);
    return {m_width, qMax(height, DialogTheme::messageIcon)};
}

QSize MessageText::minimumSizeHint() const
{
    return {DialogTheme::messageIcon, DialogTheme::messageIcon};
}

void MessageText::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    // A keyboard can scroll what has the focus.
    setFocusPolicy(verticalScrollBar()->maximum() > 0 ? Qt::TabFocus : Qt::NoFocus);
}
