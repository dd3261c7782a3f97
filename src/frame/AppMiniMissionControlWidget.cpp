#include "AppMiniMissionControlWidget.h"

#include <dialogs/DialogTheme.h>

#include <QEvent>
#include <QPointer>
#include <QVector>

#include <algorithm>
#include <functional>
#include <utility>

#include "PanelButton.h"
#include "SlidePanel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 8;
constexpr int Border = 2;

/// One panel with the button that opens it.
class Drawer : public SlidePanel
{
public:
    Drawer(QWidget *contents, AppMiniMissionControlWidget *owner, std::function<void()> restack);

    const QWidget *contents() const { return m_contents; }
    PanelButton *button() const { return grip(); }
    int position() const { return m_position; }
    void setPosition(QSize size, int position);
    void setTop(int top);
    void setButtonSize(const QSize &size);
    void fitButton();

    /// The height that button and panel take while the panel is @p share in.
    int heightAt(qreal share) const;
    int heightNow() const { return heightAt(fraction()); }
    int heightAtLast() const { return heightAt(isOut() ? 0 : 1); }

protected:
    QRect openGeometry(const QRect &area) const override;
    /// No further than the others: not above a panel that covers them.
    void bringForward() override { stackUnder(m_owner); }
    void fractionChanged() override { m_restack(); }
    void resizeEvent(QResizeEvent *event) override;

private:
    AppMiniMissionControlWidget *m_owner;
    QWidget *m_contents;
    std::function<void()> m_restack;
    QSize m_size;
    QSize m_buttonSize;
    int m_position = 0;
    int m_top = 0;
};

Drawer::Drawer(QWidget *contents, AppMiniMissionControlWidget *owner, std::function<void()> restack)
    : SlidePanel(Side::Trailing, owner->parentWidget())
    , m_owner(owner)
    , m_contents(contents)
    , m_restack(std::move(restack))
{
    setObjectName(u"MiniMcPanel"_s);
    auto *button = new PanelButton(owner->parentWidget());
    button->setObjectName(u"MiniMcButton"_s);
    setGrip(button);
    stackUnder(owner);
    m_contents->setParent(this);
    m_contents->show();
}

void Drawer::setPosition(QSize size, int position)
{
    m_size = size;
    m_position = position;
    relocate();
}

void Drawer::setTop(int top)
{
    m_top = top;
    relocate();
}

void Drawer::setButtonSize(const QSize &size)
{
    m_buttonSize = size;
    fitButton();
}

void Drawer::fitButton()
{
    const QSize least(DialogTheme::touchTarget, DialogTheme::touchTarget);
    button()->resize(m_buttonSize.isEmpty() ? button()->sizeHint()
                                            : m_buttonSize.expandedTo(least));
}

int Drawer::heightAt(qreal share) const
{
    const int shut = grip()->height();
    return shut + qRound((std::max(shut, m_size.height()) - shut) * share);
}

QRect Drawer::openGeometry(const QRect &area) const
{
    const int left =
        layoutDirection() == Qt::RightToLeft ? area.left() : area.right() + 1 - m_size.width();
    return {QPoint(left, area.top() + m_top), m_size};
}

void Drawer::resizeEvent(QResizeEvent *event)
{
    SlidePanel::resizeEvent(event);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    // Inside the panel's border, which is wider at its leading side.
    const int left = isMirrored ? 1 : Border;
    const int right = isMirrored ? Border : 1;
    m_contents->setGeometry(rect().adjusted(left, 1, -right, -1));
}

} // namespace

struct AppMiniMissionControlWidget::Private
{
    explicit Private(AppMiniMissionControlWidget *widget)
        : q(widget)
    {
    }

    Drawer *drawerOf(const QWidget *contents) const;
    Drawer *add(QWidget *contents);
    void remove(Drawer *drawer);
    void sort();
    void restack();
    void makeRoomFor(Drawer *opened);
    void followVisibility();

    AppMiniMissionControlWidget *const q;
    QVector<Drawer *> drawers; ///< from top to bottom
    QVector<Drawer *> opened; ///< those that are, in the order in which they were
    QRect area;
    int duration = 500;
};

Drawer *AppMiniMissionControlWidget::Private::drawerOf(const QWidget *contents) const
{
    const auto found = std::find_if(drawers.begin(), drawers.end(), [contents](Drawer *drawer) {
        return drawer->contents() == contents;
    });
    return found == drawers.end() ? nullptr : *found;
}

Drawer *AppMiniMissionControlWidget::Private::add(QWidget *contents)
{
    auto *drawer = new Drawer(contents, q, [this] { restack(); });
    drawer->setDuration(duration);
    drawers.append(drawer);
    QObject::connect(drawer, &SlidePanel::slideStarted, q, [this, drawer](bool isIn) {
        opened.removeAll(drawer);
        if (isIn) {
            opened.append(drawer);
            makeRoomFor(drawer);
        }
    });
    // The panel may be deleted with the parent, and the contents with the panel or without it.
    QObject::connect(contents, &QObject::destroyed, q, [this, drawer] { remove(drawer); });
    QObject::connect(drawer, &QObject::destroyed, q, [this, drawer] {
        drawers.removeAll(drawer);
        opened.removeAll(drawer);
    });
    return drawer;
}

void AppMiniMissionControlWidget::Private::remove(Drawer *drawer)
{
    if (drawers.removeAll(drawer) > 0) {
        opened.removeAll(drawer);
        drawer->deleteLater();
        restack();
    }
}

void AppMiniMissionControlWidget::Private::sort()
{
    std::stable_sort(drawers.begin(), drawers.end(), [](Drawer *one, Drawer *other) {
        return one->position() < other->position();
    });
}

/// Panels below one that opens or shuts move with it.
void AppMiniMissionControlWidget::Private::restack()
{
    int top = Gap;
    for (Drawer *drawer : std::as_const(drawers)) {
        drawer->setTop(top);
        top += drawer->heightNow() + Gap;
    }
}

void AppMiniMissionControlWidget::Private::makeRoomFor(Drawer *latest)
{
    int height = Gap;
    for (const Drawer *drawer : std::as_const(drawers)) {
        height += drawer->heightAtLast() + Gap;
    }
    const QVector<Drawer *> candidates = opened;
    for (Drawer *drawer : candidates) {
        if (height > area.height() && drawer != latest) {
            height -= drawer->heightAt(1) - drawer->heightAt(0);
            drawer->slideOut();
        }
    }
}

void AppMiniMissionControlWidget::Private::followVisibility()
{
    // Not yet shown is not hidden.
    const bool isHidden = q->isHidden() && q->testAttribute(Qt::WA_WState_ExplicitShowHide);
    for (Drawer *drawer : std::as_const(drawers)) {
        drawer->button()->setVisible(!isHidden);
        drawer->setVisible(!isHidden && (!drawer->isOut() || drawer->isMoving()));
    }
}

AppMiniMissionControlWidget::AppMiniMissionControlWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    Q_ASSERT(parent);
    setObjectName(u"AppMiniMissionControlWidget"_s);
    d->area = parent->rect();
    resize(0, 0);
}

AppMiniMissionControlWidget::~AppMiniMissionControlWidget()
{
    // Their contents tell when they go.
    const QVector<Drawer *> drawers = std::exchange(d->drawers, {});
    qDeleteAll(drawers);
}

void AppMiniMissionControlWidget::registerWidget(QWidget *widget, int width, int height,
                                                 int position)
{
    if (!widget) {
        return;
    }
    Drawer *drawer = d->drawerOf(widget);
    if (!drawer) {
        drawer = d->add(widget);
        setExpandButtonText(widget, widget->windowTitle());
    }
    drawer->setPosition({std::max(width, 0), std::max(height, 0)}, position);
    d->sort();
    drawer->layoutIn(d->area);
    d->restack();
    d->followVisibility();
}

void AppMiniMissionControlWidget::showPanel(QWidget *widget, bool exclusive)
{
    Drawer *shown = d->drawerOf(widget);
    if (!shown) {
        return;
    }
    const QVector<Drawer *> opened = d->opened;
    for (Drawer *drawer : opened) {
        if (exclusive && drawer != shown) {
            drawer->slideOut();
        }
    }
    shown->slideIn();
    d->followVisibility();
}

void AppMiniMissionControlWidget::hidePanel(QWidget *widget)
{
    if (Drawer *drawer = d->drawerOf(widget)) {
        drawer->slideOut();
    }
}

bool AppMiniMissionControlWidget::isPanelShown(const QWidget *widget) const
{
    const Drawer *drawer = d->drawerOf(widget);
    return drawer && !drawer->isOut();
}

void AppMiniMissionControlWidget::setExpandButtonText(QWidget *widget, const QString &text)
{
    if (Drawer *drawer = d->drawerOf(widget)) {
        drawer->button()->setText(text);
        drawer->button()->setAccessibleName(text.isEmpty() ? tr("Panel") : text);
        drawer->fitButton();
        d->restack();
    }
}

void AppMiniMissionControlWidget::setExpandButtonIcon(QWidget *widget, const QString &name)
{
    if (Drawer *drawer = d->drawerOf(widget)) {
        drawer->button()->setIcon(QIcon(name));
        drawer->fitButton();
        d->restack();
    }
}

void AppMiniMissionControlWidget::setExpandButtonSize(QWidget *widget, const QSize &size)
{
    if (Drawer *drawer = d->drawerOf(widget)) {
        drawer->setButtonSize(size);
        d->restack();
    }
}

void AppMiniMissionControlWidget::setDuration(int milliseconds)
{
    d->duration = milliseconds;
    for (Drawer *drawer : std::as_const(d->drawers)) {
        drawer->setDuration(milliseconds);
    }
}

void AppMiniMissionControlWidget::layoutIn(const QRect &area)
{
    d->area = area;
    for (Drawer *drawer : std::as_const(d->drawers)) {
        drawer->layoutIn(area);
    }
}

bool AppMiniMissionControlWidget::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        d->followVisibility();
        break;
    case QEvent::ZOrderChange:
        for (Drawer *drawer : std::as_const(d->drawers)) {
            drawer->stackUnder(this);
        }
        break;
    default:
        break;
    }
    return handled;
}
