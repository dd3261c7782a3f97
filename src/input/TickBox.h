#pragma once

#include <QCheckBox>

/** A check box for fingers: all of it can be tapped, and it is drawn large, in the palette's
 * colours. */
class TickBox : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint &at) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawBox(QPainter &painter, const QColor &ink) const;
};
