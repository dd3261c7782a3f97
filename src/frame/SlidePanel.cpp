#include "SlidePanel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleHints>
#include <QVariantAnimation>

#include <cmath>
#include <deque>
#include <utility>

#include "ColorTheme.h"
#include "PanelButton.h"
#include <dialogs/DialogTheme.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int SlideDuration = 500;
constexpr int Border = 2;
/// The part of the way after which a panel that is let go of goes on.
constexpr qreal Onwards = 1.0 / 3;
/// Pixels in a millisecond that make a flick, measured over the last part of a pull.
constexpr qreal Flick = 0.5;
constexpr qint64 FlickTime = 100;

} // namespace

/// Also the filter that sees the finger on the panel, its grip and its handles.
struct SlidePanel::Private : public QObject
{
    struct Sample
    {
        qint64 time;
        qreal way;
    };

    explicit Private(SlidePanel *panel, Side panelSide);

    bool eventFilter(QObject *watched, QEvent *event) override;
    bool press(const QMouseEvent &event, bool isGround);
    bool move(const QMouseEvent &event);
    bool release(QObject *watched);
    void cancelPull();

    /// How far the finger has come towards the inside since it was put down.
    qreal wayOf(const QMouseEvent &event) const;
    qreal speed() const;
    bool wouldGoIn() const;
    bool isMirrored() const { return q->layoutDirection() == Qt::RightToLeft; }
    int extent() const { return side == Side::Bottom ? open.height() : open.width(); }
    QPoint shutPosition() const;
    Qt::ArrowType gripDirection() const;

    void comeUp();
    void slideTo(bool in);
    void setFraction(qreal value);
    void end();
    void move();
    void takeColors();

    SlidePanel *const q;
    const Side side;
    QPointer<PanelButton> grip;
    QVariantAnimation animation;
    int duration = SlideDuration;
    QRect area;
    QRect open;
    qreal fraction = 0;
    bool wantedIn = false;

    bool isPressed = false;
    bool isPulled = false;
    QPointF pressedAt;
    qreal pressedFraction = 0;
    QElapsedTimer clock;
    std::deque<Sample> samples;
};

SlidePanel::Private::Private(SlidePanel *panel, Side panelSide)
    : q(panel)
    , side(panelSide)
{
    animation.setEasingCurve(QEasingCurve::OutQuad);
    connect(&animation, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        // While a slide is prepared, the end of the last one is told anew.
        if (animation.state() == QAbstractAnimation::Running) {
            setFraction(value.toReal());
        }
    });
    connect(&animation, &QAbstractAnimation::finished, this, &Private::end);
}

bool SlidePanel::Private::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*static_cast<QMouseEvent *>(event), watched == q);
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return release(watched);
    case QEvent::Hide:
        cancelPull();
        return false;
    default:
        return false;
    }
}

/// @return whether nobody else is to see the event. What lies behind the panel is not touched.
bool SlidePanel::Private::press(const QMouseEvent &event, bool isGround)
{
    if (event.button() == Qt::LeftButton) {
        isPressed = true;
        pressedAt = event.globalPosition();
        pressedFraction = fraction;
        samples.clear();
    }
    return isGround;
}

bool SlidePanel::Private::move(const QMouseEvent &event)
{
    if (!isPressed) {
        return false;
    }
    const qreal way = wayOf(event);
    if (!isPulled && std::abs(way) >= QGuiApplication::styleHints()->startDragDistance()) {
        animation.stop();
        pressedFraction = fraction;
        isPulled = true;
        comeUp();
    }
    if (isPulled) {
        samples.push_back({clock.elapsed(), way});
        setFraction(std::clamp(pressedFraction + way / std::max(extent(), 1), 0.0, 1.0));
    }
    return isPulled;
}

bool SlidePanel::Private::release(QObject *watched)
{
    isPressed = false;
    if (!isPulled) {
        return watched == q;
    }
    if (auto *button = qobject_cast<QAbstractButton *>(watched)) {
        button->setDown(false);
    }
    slideTo(wouldGoIn());
    return true;
}

/// What is hidden under the finger never hears of its release: the panel is back where it was.
void SlidePanel::Private::cancelPull()
{
    isPressed = false;
    if (std::exchange(isPulled, false)) {
        end();
    }
}

qreal SlidePanel::Private::wayOf(const QMouseEvent &event) const
{
    const QPointF way = pressedAt - event.globalPosition();
    if (side == Side::Bottom) {
        return way.y();
    }
    return isMirrored() ? -way.x() : way.x();
}

/// A finger that rests before it is lifted flicks nothing.
qreal SlidePanel::Private::speed() const
{
    const qint64 now = clock.elapsed();
    const auto first = std::find_if(samples.begin(), samples.end(), [now](const Sample &sample) {
        return now - sample.time <= FlickTime;
    });
    if (first == samples.end()) {
        return 0;
    }
    return (samples.back().way - first->way) / qreal(std::max(now - first->time, qint64(1)));
}

bool SlidePanel::Private::wouldGoIn() const
{
    const qreal flick = speed();
    if (std::abs(flick) >= Flick) {
        return flick > 0;
    }
    return fraction >= (wantedIn ? 1 - Onwards : Onwards);
}

QPoint SlidePanel::Private::shutPosition() const
{
    const QWidget *parent = q->parentWidget();
    if (side == Side::Bottom) {
        return {open.x(), parent->height()};
    }
    return {isMirrored() ? -open.width() : parent->width(), open.y()};
}

Qt::ArrowType SlidePanel::Private::gripDirection() const
{
    if (side == Side::Bottom) {
        return wantedIn ? Qt::DownArrow : Qt::UpArrow;
    }
    return wantedIn == isMirrored() ? Qt::LeftArrow : Qt::RightArrow;
}

void SlidePanel::Private::comeUp()
{
    q->relocate();
    q->show();
    q->bringForward();
}

void SlidePanel::Private::slideTo(bool in)
{
    const QPointer<SlidePanel> self(q);
    animation.stop();
    isPressed = false;
    isPulled = false;
    wantedIn = in;
    if (grip) {
        grip->setDirection(gripDirection());
    }
    Q_EMIT q->slideStarted(in);
    if (!self || wantedIn != in) {
        return;
    }
    if (in) {
        comeUp();
    }
    const qreal target = in ? 1 : 0;
    animation.setStartValue(fraction);
    animation.setEndValue(target);
    animation.setDuration(qRound(duration * std::abs(target - fraction)));
    animation.start();
}

void SlidePanel::Private::setFraction(qreal value)
{
    if (value != fraction) {
        fraction = value;
        q->fractionChanged();
    }
}

void SlidePanel::Private::end()
{
    setFraction(wantedIn ? 1 : 0);
    if (!wantedIn) {
        q->hide();
    }
    Q_EMIT q->slideEnded(wantedIn);
}

void SlidePanel::Private::move()
{
    const QPointF way = QPointF(open.topLeft() - shutPosition()) * fraction;
    q->setGeometry(QRect(shutPosition() + way.toPoint(), open.size()));
    if (grip) {
        grip->move(q->gripPosition());
    }
}

void SlidePanel::Private::takeColors()
{
    const ColorTheme &theme = ColorTheme::current();
    QPalette colors;
    colors.setColor(QPalette::Window, theme.color("panel"_L1));
    colors.setColor(QPalette::WindowText, theme.color("panelText"_L1));
    colors.setColor(QPalette::Disabled, QPalette::WindowText, theme.color("disabledText"_L1));
    q->setPalette(colors);
}

SlidePanel::SlidePanel(Side side, QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>(this, side))
{
    Q_ASSERT(parent);
    setAttribute(Qt::WA_OpaquePaintEvent);
    d->clock.start();
    d->area = parent->rect();
    d->takeColors();
    installEventFilter(d.get());
    hide();
}

SlidePanel::~SlidePanel()
{
    d->isPulled = false;
    delete d->grip.data();
}

SlidePanel::Side SlidePanel::side() const
{
    return d->side;
}

int SlidePanel::duration() const
{
    return d->duration;
}

void SlidePanel::setDuration(int milliseconds)
{
    d->duration = std::max(milliseconds, 0);
}

bool SlidePanel::isOut() const
{
    return !d->wantedIn;
}

bool SlidePanel::isMoving() const
{
    return d->isPulled || d->animation.state() == QAbstractAnimation::Running;
}

void SlidePanel::layoutIn(const QRect &area)
{
    d->area = area;
    relocate();
}

void SlidePanel::slideIn()
{
    if (!d->wantedIn || d->isPulled) {
        d->slideTo(true);
    }
}

void SlidePanel::slideOut()
{
    if (d->wantedIn || d->isPulled) {
        d->slideTo(false);
    }
}

void SlidePanel::bringForward()
{
    raise();
}

void SlidePanel::fractionChanged()
{
    d->move();
}

void SlidePanel::relocate()
{
    d->open = openGeometry(d->area);
    d->move();
}

qreal SlidePanel::fraction() const
{
    return d->fraction;
}

QRect SlidePanel::area() const
{
    return d->area;
}

void SlidePanel::setGrip(PanelButton *grip)
{
    d->grip = grip;
    grip->setParent(parentWidget());
    grip->setDirection(d->gripDirection());
    grip->stackUnder(this);
    grip->resize(grip->sizeHint());
    grip->show();
    addHandle(grip);
    connect(grip, &QAbstractButton::clicked, this, [this] { d->slideTo(isOut()); });
}

PanelButton *SlidePanel::grip() const
{
    return d->grip;
}

QPoint SlidePanel::gripPosition() const
{
    const QRect now = geometry();
    if (d->side == Side::Bottom) {
        return {now.center().x() - d->grip->width() / 2, now.top() - d->grip->height()};
    }
    return {d->isMirrored() ? now.right() + 1 : now.left() - d->grip->width(), now.top()};
}

void SlidePanel::addHandle(QWidget *handle)
{
    handle->installEventFilter(d.get());
}

bool SlidePanel::event(QEvent *event)
{
    const bool handled = QFrame::event(event);
    switch (event->type()) {
    case QEvent::ZOrderChange:
        // Beside the panel, but at its height among the other children.
        if (d->grip) {
            d->grip->stackUnder(this);
        }
        break;
    case QEvent::LayoutDirectionChange:
        if (d->grip) {
            d->grip->setDirection(d->gripDirection());
        }
        relocate();
        break;
    case QEvent::LayoutRequest:
        relocate();
        break;
    default:
        break;
    }
    return handled;
}

/// Setting a palette that is there already changes nothing, and so ends here.
void SlidePanel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        d->takeColors();
    }
}

void SlidePanel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Active, QPalette::Window));
    const QColor line = DialogTheme::outline(palette());
    QRect leading(0, 0, width(), Border);
    if (d->side == Side::Trailing) {
        leading = QRect(d->isMirrored() ? width() - Border : 0, 0, Border, height());
    }
    painter.fillRect(leading, line);
    painter.setPen(line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
