#include "PanelButton.h"

#include <dialogs/DialogTheme.h>

#include <QPainter>
#include <QStyle>

#include "PanelLook.h"

namespace {

constexpr int Chevron = 24;
constexpr int HandleLength = 120;
constexpr int Gap = 8;

} // namespace

PanelButton::PanelButton(QWidget *parent)
    : QPushButton(parent)
{
    setIconSize({DialogTheme::tabIcon, DialogTheme::tabIcon});
    setFont(PanelLook::font(font(), DialogTheme::fontSize));
    setAutoDefault(false);
}

void PanelButton::setDirection(Qt::ArrowType direction)
{
    if (m_direction != direction) {
        m_direction = direction;
        updateGeometry();
        update();
    }
}

int PanelButton::labelWidth() const
{
    const int icon = this->icon().isNull() ? 0 : iconSize().width();
    const int text = this->text().isEmpty() ? 0 : fontMetrics().horizontalAdvance(this->text()) + 2;
    return icon + text + (icon > 0 && text > 0 ? Gap : 0);
}

int PanelButton::chevronWidth() const
{
    return m_direction == Qt::NoArrow ? 0 : Chevron + Gap;
}

QSize PanelButton::sizeHint() const
{
    if (labelWidth() > 0) {
        return {std::max(labelWidth() + chevronWidth() + 2 * Gap, DialogTheme::touchTarget),
                DialogTheme::touchTarget};
    }
    const QSize lying(HandleLength, DialogTheme::touchTarget);
    const bool isUpright = m_direction == Qt::LeftArrow || m_direction == Qt::RightArrow;
    return isUpright ? lying.transposed() : lying;
}

QSize PanelButton::minimumSizeHint() const
{
    return {DialogTheme::touchTarget, DialogTheme::touchTarget};
}

/// A button too small for both shows what it is rather than where it goes.
void PanelButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ink = PanelLook::drawPlate(painter, *this);
    if (labelWidth() == 0) {
        PanelLook::drawChevron(painter, rect(), m_direction, ink);
        return;
    }
    QRect label = rect().adjusted(Gap, 0, -Gap, 0);
    if (chevronWidth() > 0 && label.width() >= labelWidth() + chevronWidth()) {
        const QRect chevron(Gap, 0, Chevron, height());
        PanelLook::drawChevron(painter, QStyle::visualRect(layoutDirection(), rect(), chevron),
                               m_direction, ink);
        label.setLeft(label.left() + chevronWidth());
    }
    const int spare = std::max(label.width() - labelWidth(), 0);
    drawLabel(painter, label.adjusted(spare / 2, 0, 0, 0), ink);
}

/// @p place is that of a left-to-right layout.
void PanelButton::drawLabel(QPainter &painter, QRect place, const QColor &ink)
{
    const auto visual = [this](const QRect &logical) {
        return QStyle::visualRect(layoutDirection(), rect(), logical);
    };
    if (!icon().isNull()) {
        const int width = std::min(iconSize().width(), place.width());
        icon().paint(&painter, visual({place.left(), 0, width, height()}), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
        place.setLeft(place.left() + width + Gap);
    }
    painter.setPen(ink);
    painter.drawText(visual(place), int(Qt::AlignVCenter | Qt::AlignLeading),
                     fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
}
