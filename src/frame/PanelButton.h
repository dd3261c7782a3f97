#pragma once

#include <QPushButton>

/**
 * A button of a panel: a plate with icon and text, at least 48 pixels high. With a direction it has
 * a chevron as well and can be what a panel is pulled by.
 */
class PanelButton : public QPushButton
{
    Q_OBJECT

public:
    explicit PanelButton(QWidget *parent);

    /** Where the chevron points; NoArrow, for none, by default. */
    void setDirection(Qt::ArrowType direction);
    Qt::ArrowType direction() const { return m_direction; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int labelWidth() const;
    int chevronWidth() const;
    void drawLabel(QPainter &painter, QRect place, const QColor &ink);

    Qt::ArrowType m_direction = Qt::NoArrow;
};
