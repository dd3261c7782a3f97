#pragma once

#include <QObject>

class QAbstractScrollArea;
class QMouseEvent;
class QScroller;

/**
 * Scrolls an area with a finger on what it shows, as scroll bars are too narrow to be touched.
 *
 * Feeds a QScroller itself because QScroller::grabGesture() leaks a gesture recognizer each time.
 * A drag is not seen by the area, so that it follows no link and selects nothing.
 */
class FingerScroll : public QObject
{
    Q_OBJECT

public:
    /** Belongs to @p area. */
    explicit FingerScroll(QAbstractScrollArea *area);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool feed(const QMouseEvent &event);

    QScroller *m_scroller; ///< the toolkit's, which goes with the area
};
