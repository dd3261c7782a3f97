#include "SlidingStackedWidget.h"

#include <QEvent>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>

#include <algorithm>

using Direction = SlidingStackedWidget::t_direction;

SlidingStackedWidget::SlidingStackedWidget(QWidget *parent)
    : QStackedWidget(parent)
    , m_group(new QParallelAnimationGroup(this))
    , m_outgoingAnimation(new QPropertyAnimation(m_group))
    , m_incomingAnimation(new QPropertyAnimation(m_group))
{
    m_outgoingAnimation->setPropertyName("pos");
    m_incomingAnimation->setPropertyName("pos");
    connect(m_group, &QAbstractAnimation::finished, this, &SlidingStackedWidget::animationDoneSlot);
    connect(this, &QStackedWidget::currentChanged, this, &SlidingStackedWidget::followChosenPage);
    connect(this, &QStackedWidget::widgetRemoved, this, &SlidingStackedWidget::followRemoval);
}

SlidingStackedWidget::~SlidingStackedWidget() = default;

void SlidingStackedWidget::setSpeed(int milliseconds)
{
    m_speed = std::max(milliseconds, 0);
}

void SlidingStackedWidget::setAnimation(QEasingCurve::Type type)
{
    if (type >= QEasingCurve::Linear && type < QEasingCurve::BezierSpline) {
        m_animation = type;
    }
}

void SlidingStackedWidget::setVerticalMode(bool vertical)
{
    m_vertical = vertical;
}

void SlidingStackedWidget::setWrap(bool wrap)
{
    m_wrap = wrap;
}

void SlidingStackedWidget::setRemoteLocked(bool locked)
{
    m_locked = locked;
    if (!m_active) {
        setEnabled(!m_locked);
    }
}

bool SlidingStackedWidget::slideInNext()
{
    const bool isLast = currentIndex() >= count() - 1;
    return (m_wrap || !isLast) && slideInIdx(currentIndex() + 1);
}

bool SlidingStackedWidget::slideInPrev()
{
    return (m_wrap || currentIndex() > 0) && slideInIdx(currentIndex() - 1);
}

bool SlidingStackedWidget::slideInIdx(int index, t_direction direction)
{
    const int pages = count();
    if (pages == 0) {
        return false;
    }
    if (index < 0 || index >= pages) {
        direction = directionTowards(index >= pages);
        index = (index % pages + pages) % pages;
    }
    return slideInWgt(widget(index), direction);
}

bool SlidingStackedWidget::slideInWgt(QWidget *page, t_direction direction)
{
    const int index = indexOf(page);
    if (m_active || index < 0 || index == currentIndex()) {
        return false;
    }
    m_active = true;
    m_preparing = true;
    const QRect place = contentsRect();
    preparePages(page,
                 direction == Automatic ? directionTowards(index > currentIndex()) : direction);
    m_preparing = false;
    runSlide(place);
    return true;
}

Direction SlidingStackedWidget::directionTowards(bool later) const
{
    if (m_vertical) {
        return later ? VerticalLater : VerticalEarlier;
    }
    return later ? HorizontalLater : HorizontalEarlier;
}

QPoint SlidingStackedWidget::offset(t_direction direction) const
{
    const QSize frame = frameRect().size();
    const int width = isRightToLeft() ? -frame.width() : frame.width();
    switch (direction) {
    case HorizontalEarlier:
        return {width, 0};
    case VerticalLater:
        return {0, frame.height()};
    case VerticalEarlier:
        return {0, -frame.height()};
    case HorizontalLater:
    case Automatic:
        break;
    }
    return {-width, 0};
}

void SlidingStackedWidget::preparePages(QWidget *page, t_direction direction)
{
    const QPoint way = offset(direction);
    m_outgoing = currentWidget();
    m_incoming = page;
    m_outgoingPosition = m_outgoing->pos();
    page->setGeometry(contentsRect());
    m_incomingPosition = page->pos();

    m_outgoingAnimation->setTargetObject(m_outgoing);
    m_outgoingAnimation->setStartValue(m_outgoingPosition);
    m_outgoingAnimation->setEndValue(m_outgoingPosition + way);
    m_incomingAnimation->setTargetObject(page);
    m_incomingAnimation->setStartValue(m_incomingPosition - way);
    m_incomingAnimation->setEndValue(m_incomingPosition);
    for (QPropertyAnimation *animation : {m_outgoingAnimation, m_incomingAnimation}) {
        animation->setDuration(m_speed);
        animation->setEasingCurve(m_animation);
    }

    page->move(m_incomingPosition - way);
    page->raise();
    page->show();
}

/// @p place is where the pages were when they were prepared. What sees one of them get its size or
/// come up may have disturbed the slide already.
void SlidingStackedWidget::runSlide(const QRect &place)
{
    const QPointer<SlidingStackedWidget> self(this);
    Q_EMIT animationStarted();
    if (!self || !m_active) {
        return;
    }
    const bool isWhole = indexOf(m_incoming) >= 0 && m_outgoing && currentWidget() == m_outgoing;
    if (isWhole && contentsRect() == place) {
        m_group->start();
    } else {
        animationDoneSlot();
    }
}

/// Somebody else made a page current, unless it is the stack that replaces a removed one.
void SlidingStackedWidget::followChosenPage()
{
    if (m_active && indexOf(m_outgoing) >= 0 && currentWidget() != m_outgoing) {
        putAway(m_incoming, m_incomingPosition);
        m_incoming = currentWidget();
        animationDoneSlot();
    }
}

void SlidingStackedWidget::followRemoval()
{
    if (m_active && (indexOf(m_outgoing) < 0 || indexOf(m_incoming) < 0)) {
        animationDoneSlot();
    }
}

void SlidingStackedWidget::animationDoneSlot()
{
    if (!m_active || m_preparing || m_ending) {
        return;
    }
    const QPointer<SlidingStackedWidget> self(this);
    m_ending = true;
    m_group->stop();
    if (indexOf(m_incoming) >= 0) {
        setCurrentWidget(m_incoming);
    }
    if (!self) {
        return;
    }
    settlePages();
    m_ending = false;
    m_active = false;
    setEnabled(!m_locked);
    Q_EMIT animationFinished();
}

/// Pages that have been taken out of the stack are its children still.
void SlidingStackedWidget::putAway(QWidget *page, QPoint position)
{
    if (page && page != currentWidget() && page->parentWidget() == this) {
        page->hide();
        page->move(position);
    }
}

void SlidingStackedWidget::settlePages()
{
    putAway(m_outgoing, m_outgoingPosition);
    putAway(m_incoming, m_incomingPosition);
    if (QWidget *page = currentWidget()) {
        page->setGeometry(contentsRect());
        page->show();
    }
}

/// The layout, which knows nothing of slides, puts the outgoing page back when it is asked to act.
bool SlidingStackedWidget::event(QEvent *event)
{
    const bool handled = QStackedWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && m_active && !m_ending) {
        for (QPropertyAnimation *animation : {m_outgoingAnimation, m_incomingAnimation}) {
            if (auto *page = qobject_cast<QWidget *>(animation->targetObject())) {
                page->move(animation->currentValue().toPoint());
            }
        }
    }
    return handled;
}

void SlidingStackedWidget::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    animationDoneSlot();
}
