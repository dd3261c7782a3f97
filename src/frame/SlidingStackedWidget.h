#pragma once

#include <QEasingCurve>
#include <QPointer>
#include <QStackedWidget>

#include "VexExport.h"

class QParallelAnimationGroup;
class QPropertyAnimation;

/**
 * A stack of pages that slide when the page changes.
 *
 * One slide runs at a time; whoever asks for another meanwhile is refused. animationStarted() is
 * always followed by one animationFinished(), and then the current page alone is visible, in its
 * place. A slide ends before its time, without a jump back, when the stack is resized, when one of
 * its two pages is removed or deleted, and when setCurrentIndex() chooses a page. The target of
 * the slide is current then if it is still there and no other page was chosen.
 *
 * Pages are laid out before the slide, in the size that they will have, and only moved during it.
 */
class VEX_EXPORT SlidingStackedWidget : public QStackedWidget
{
    Q_OBJECT
    Q_PROPERTY(int speed READ speed WRITE setSpeed)
    Q_PROPERTY(QEasingCurve::Type animationtype READ animation WRITE setAnimation)
    Q_PROPERTY(bool vertical READ isVerticalMode WRITE setVerticalMode)
    Q_PROPERTY(bool wrap READ wrap WRITE setWrap)
    Q_PROPERTY(bool locked READ isRemoteLocked WRITE setRemoteLocked)

public:
    /**
     * Where the pages go; a later page has a greater index. Left and right change places in a
     * layout from right to left.
     */
    enum t_direction {
        HorizontalEarlier = 0, ///< to the right
        HorizontalLater = 1, ///< to the left
        VerticalLater = 2, ///< down
        VerticalEarlier = 3, ///< up
        Automatic = 4, ///< as the indexes of the two pages and the vertical mode say
    };
    Q_ENUM(t_direction)

    explicit SlidingStackedWidget(QWidget *parent = nullptr);
    ~SlidingStackedWidget() override;

    int speed() const { return m_speed; }
    QEasingCurve::Type animation() const { return m_animation; }
    bool isVerticalMode() const { return m_vertical; }
    bool wrap() const { return m_wrap; }
    bool isRemoteLocked() const { return m_locked; }

Q_SIGNALS:
    /** The slide is over and another one may start. */
    void animationFinished();
    /** The pages are about to move. */
    void animationStarted();

public Q_SLOTS:
    /**
     * The duration of the slides to come in milliseconds, 500 by default. With 0, the slide is over
     * when the call that starts it returns.
     */
    void setSpeed(int milliseconds);
    /**
     * The easing curve of the slides to come, OutQuad by default. Curves that are not described by
     * their type alone (splines, Custom) are ignored.
     */
    void setAnimation(QEasingCurve::Type type);
    void setVerticalMode(bool vertical = true);
    /** Whether slideInNext() and slideInPrev() go round at the ends. */
    void setWrap(bool wrap);
    /** A locked stack is disabled; from the end of the slide on, when one is running. */
    void setRemoteLocked(bool locked);

    /** @return whether a slide was started; this holds for all four. */
    bool slideInNext();
    bool slideInPrev();
    /**
     * Slides to the page with that index; one past either end goes round, with the direction of
     * going on.
     */
    bool slideInIdx(int index, t_direction direction = Automatic);
    bool slideInWgt(QWidget *page, t_direction direction = Automatic);

protected Q_SLOTS:
    /** Ends the slide, if one is running. */
    void animationDoneSlot();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    t_direction directionTowards(bool later) const;
    QPoint offset(t_direction direction) const;
    void preparePages(QWidget *page, t_direction direction);
    void runSlide(const QRect &place);
    void followChosenPage();
    void followRemoval();
    void putAway(QWidget *page, QPoint position);
    void settlePages();

    int m_speed = 500;
    QEasingCurve::Type m_animation = QEasingCurve::OutQuad;
    bool m_vertical = false;
    bool m_wrap = false;
    bool m_locked = false;

    bool m_active = false;
    bool m_preparing = false; ///< the slide does not end before its start was told
    bool m_ending = false;
    QPointer<QWidget> m_outgoing;
    QPointer<QWidget> m_incoming;
    QPoint m_outgoingPosition;
    QPoint m_incomingPosition;
    QParallelAnimationGroup *m_group;
    QPropertyAnimation *m_outgoingAnimation;
    QPropertyAnimation *m_incomingAnimation;
};
