#include "FigureTile.h"

#include "Look.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <frame/ColorTheme.h>

FigureTile::FigureTile(const QString &objectName, QWidget *parent)
    : QFrame(parent)
    , m_caption(new QLabel(this))
    , m_value(new QLabel(this))
{
    setObjectName(objectName);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Look::spacing, 4, Look::spacing, 4);
    layout->setSpacing(0);
    layout->addWidget(m_caption);
    layout->addWidget(m_value);
    m_value->setFont(Look::scaled(m_value->font(), 1.5, true));
    setColours();
}

void FigureTile::setCaption(const QString &caption)
{
    m_caption->setText(caption);
    setAccessibleName(caption);
}

void FigureTile::setValue(const QString &value)
{
    m_value->setText(value);
    setAccessibleDescription(value);
}

QString FigureTile::value() const
{
    return m_value->text();
}

void FigureTile::setFailed(bool failed)
{
    if (failed != m_failed) {
        m_failed = failed;
        setColours();
    }
}

void FigureTile::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setColours();
    }
}

void FigureTile::setColours()
{
    QPalette palette = m_value->palette();
    const ColorTheme &theme = ColorTheme::current();
    const QColor ink = theme.color(m_failed ? "fail" : "text");
    if (palette.color(QPalette::WindowText) != ink) {
        palette.setColor(QPalette::WindowText, ink);
        m_value->setPalette(palette);
    }
}
