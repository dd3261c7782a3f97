#pragma once

#include <QPoint>

#include <memory>

class QPointingDevice;
class QWidget;

/**
 * Touches a window as a touch screen does: the events take the toolkit's whole way, so what is
 * covered, disabled or behind a dialog can't be hit. Positions are the window's; GUI thread.
 */
class Finger
{
public:
    explicit Finger(QWidget &window);
    ~Finger();
    Q_DISABLE_COPY_MOVE(Finger)

    void press(QPoint position);
    void move(QPoint position);
    void release(QPoint position);

    /// Two fingers at once.
    void pressTwo(QPoint one, QPoint other);
    void moveTwo(QPoint one, QPoint other);
    void releaseTwo(QPoint one, QPoint other);

    /// Turns the keypad's wheel over that place; upward for positive notches.
    void turnWheel(QPoint position, int notches);

private:
    QWidget &m_window;
    const std::unique_ptr<QPointingDevice> m_screen;
};
