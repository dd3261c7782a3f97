#pragma once

#include <QPointingDevice>
#include <QTest>
#include <QWidget>

/** A finger on a touch screen. Places are in coordinates of the window. */
class Finger
{
public:
    explicit Finger(QWidget &window)
        : m_window(window)
    {
    }

    void press(QPoint place) { touch().press(0, m_place = place, &m_window); }
    void moveTo(QPoint place) { touch().move(0, m_place = place, &m_window); }
    void lift() { touch().release(0, m_place, &m_window); }
    void tap(QPoint place) { press(place), lift(); }
    /** While this one stays. */
    void tapWithAnother(QPoint place)
    {
        touch().move(0, m_place, &m_window).press(1, place, &m_window);
        touch().move(0, m_place, &m_window).release(1, place, &m_window);
    }

private:
    QTest::QTouchEventWidgetSequence touch()
    {
        static QPointingDevice *const screen = QTest::createTouchDevice();
        return QTest::touchEvent(&m_window, screen);
    }

    QWidget &m_window;
    QPoint m_place;
};
