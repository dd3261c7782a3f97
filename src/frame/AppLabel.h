#pragma once

#include <QLabel>

#include "VexExport.h"

/**
 * A label that can be tapped. 48 pixels high or more; its text lies in the lower 36 of them, so
 * that it is touched a little above its line, too. A text that is too long is cut with an ellipsis.
 *
 * From a keyboard Space and Enter tap it.
 */
class VEX_EXPORT AppLabel : public QLabel
{
    Q_OBJECT

public:
    /** @p index is what labelClicked() tells. */
    explicit AppLabel(int index, QWidget *parent = nullptr);

    int index() const { return m_index; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** The label was tapped; a finger that leaves it before it is lifted taps nothing. */
    void labelClicked(int index);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setPressed(bool isPressed);

    const int m_index;
    bool m_isPressed = false;
};
