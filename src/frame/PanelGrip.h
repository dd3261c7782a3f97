#pragma once

#include <QAbstractButton>

/**
 * What a sliding panel is tapped or pulled by: a plate with a chevron, or with an icon and a text
 * beside it. Keys work as for any button. A pull is told apart from a tap, which alone clicks.
 */
class PanelGrip : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PanelGrip(QWidget *parent);

    /** Where the chevron points. */
    void setDirection(Qt::ArrowType direction);
    Qt::ArrowType direction() const { return m_direction; }

    QSize sizeHint() const override;

Q_SIGNALS:
    /** Places are global. */
    void pullStarted(QPointF place);
    void pulled(QPointF place);
    void pullEnded();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPointF m_pressed;
    bool m_pulling = false;
    Qt::ArrowType m_direction = Qt::UpArrow;
};
