#include "Finger.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

Finger::Finger(QWidget &window)
    : m_window(window)
    , m_screen(QTest::createTouchDevice())
{
}

Finger::~Finger() = default;

void Finger::press(QPoint position)
{
    QTest::touchEvent(m_window.windowHandle(), m_screen.get()).press(0, position);
}

void Finger::move(QPoint position)
{
    QTest::touchEvent(m_window.windowHandle(), m_screen.get()).move(0, position);
}

void Finger::release(QPoint position)
{
    QTest::touchEvent(m_window.windowHandle(), m_screen.get()).release(0, position);
}

void Finger::pressTwo(QPoint one, QPoint other)
{
    QTest::touchEvent(m_window.windowHandle(), m_screen.get()).press(0, one).press(1, other);
}

void Finger::moveTwo(QPoint one, QPoint other)
{
    QTest::touchEvent(m_window.windowHandle(), m_screen.get()).move(0, one).move(1, other);
}

void Finger::releaseTwo(QPoint one, QPoint other)
{
    QTest::touchEvent(m_window.windowHandle(), m_screen.get()).release(0, one).release(1, other);
}

void Finger::turnWheel(QPoint position, int notches)
{
    constexpr int notch = 120; // eighths of a degree
    QWidget *below = m_window.childAt(position);
    if (!below) {
        return;
    }
    const QPoint local = below->mapFrom(&m_window, position);
    QWheelEvent event(local, m_window.mapToGlobal(position), {}, {0, notches * notch}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(below, &event);
}
