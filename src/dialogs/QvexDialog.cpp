#include "QvexDialog.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QScreen>

#include "DialogGuard.h"
#include "DialogTheme.h"
#include "DialogsLogging.h"
#include "QvexDialogBorder.h"
#include "QvextHelpDialog.h"

using namespace Qt::StringLiterals;

QStack<QPointer<QvexDialog>> QvexDialog::m_dialogStack;
bool QvexDialog::m_remoteLocked = false;
QPoint QvexDialog::m_moveOffset;

namespace {

constexpr int MoveStep = 10;
constexpr int FarthestX = 350;
constexpr int FarthestY = 250;

/// @return Where something at @p pos and of @p length begins when it is kept within @p space. When
/// it is too long for that, it loses @p spare at both ends, and then its end or its beginning.
int clamped(int pos, int length, int space, int spare, bool keepEnd)
{
    if (length <= space) {
        return qBound(0, pos, space - length);
    }
    const int least = space - length + spare;
    const int most = -spare;
    if (least <= most) {
        return qBound(least, pos, most);
    }
    return keepEnd ? least : most;
}

} // namespace

struct QvexDialog::Private
{
    Private(QvexDialog *dialog, bool withBorderButtons, bool movable)
        : q(dialog)
        , border(std::make_unique<QvexDialogBorder>(withBorderButtons, movable))
        , shield(std::make_unique<QWidget>())
        , withButtons(withBorderButtons)
    {
        shield->setObjectName(u"DlgShield"_s);
        shield->setAttribute(Qt::WA_NoMousePropagation);
        shield->setAutoFillBackground(true);
        shield->setPalette(DialogTheme::shieldColor());
    }

    QWidget *parentApplication() const;
    void setOwner(QWidget *widget);

    void enterSurface();
    void moveTo(QWidget *target);
    void leaveSurface();
    void showAround();
    void leave();
    void restack();

    QMargins margins() const { return borderVisible ? border->margins() : QMargins(); }
    QSize wantedSize() const;
    void fit();
    void place();
    void follow();
    void refresh();
    static void rejectAllIn(const QWidget *window);

    QvexDialog *const q;
    std::unique_ptr<QWidget> host; ///< stands in for a parent application that is not visible
    std::unique_ptr<QvexDialogBorder> border;
    std::unique_ptr<QWidget> shield; ///< covers the parent application while the dialog runs
    QPointer<QWidget> owner;
    QPointer<QWidget> application;
    QPointer<QWidget> surface; ///< what the dialog is drawn in
    QMetaObject::Connection ownerGone;
    QMetaObject::Connection surfaceGone;
    QEventLoop *loop = nullptr;
    QPoint home; ///< the position without the shared offset, when it was set by move()
    QPoint placed;
    QString helpUrl;
    bool withButtons;
    bool borderVisible = true;
    bool autoClose = false;
    bool running = false;
    bool arranging = false; ///< parent, position or size are being changed from in here
};

QWidget *QvexDialog::Private::parentApplication() const
{
    if (application || !owner) {
        return application;
    }
    for (QWidget *widget = owner; widget; widget = widget->parentWidget()) {
        if (const auto *outer = qobject_cast<QvexDialog *>(widget)) {
            return outer->parentApplication();
        }
    }
    return QvexDialogBorder::applicationWindow(owner);
}

void QvexDialog::Private::setOwner(QWidget *widget)
{
    disconnect(ownerGone);
    owner = widget;
    if (owner) {
        // A shown dialog is a child of its parent application, not of its owner.
        ownerGone = connect(owner, &QObject::destroyed, q, [this] { delete q; });
    }
}

void QvexDialog::Private::enterSurface()
{
    QWidget *target = parentApplication();
    if (running && target && !target->isVisible()) {
        if (!host) {
            host = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
            host->setAttribute(Qt::WA_QuitOnClose, false);
            host->resize(q->screen()->availableSize().boundedTo(DialogTheme::screenSize));
        }
        target = host.get();
    }
    if (target) {
        moveTo(target);
        fit();
        place();
    }
    if (host && target == host.get()) {
        host->show();
    }
}

void QvexDialog::Private::moveTo(QWidget *target)
{
    const QScopedValueRollback arrange(arranging, true);
    disconnect(surfaceGone);
    if (surface) {
        surface->removeEventFilter(q);
    }
    surface = target;
    if (q->parentWidget() != target || q->isWindow()) {
        q->setParent(target, Qt::SubWindow | Qt::FramelessWindowHint);
    }
    border->setParent(target);
    shield->setParent(target);
    target->installEventFilter(q);
    // It comes before the children are deleted, and so before border and shield would be.
    surfaceGone = connect(target, &QObject::destroyed, q, [this] { leaveSurface(); });
}

/// The window dies, and would take along the dialog, which is not its own.
void QvexDialog::Private::leaveSurface()
{
    const QPointer<QvexDialog> guard(q);
    rejectAllIn(surface);
    if (guard) {
        q->hide();
    }
    if (guard) {
        const QScopedValueRollback arrange(arranging, true);
        surface = nullptr;
        border->setParent(nullptr);
        shield->setParent(nullptr);
        q->setParent(nullptr);
    }
}

/// Shows what belongs to the dialog and is not its child.
void QvexDialog::Private::showAround()
{
    shield->setVisible(running && surface);
    if (borderVisible) {
        border->show();
    }
    if (surface) {
        q->raise();
        restack();
    }
    DialogGuard::instance().add(q, border.get(), shield.get());
}

void QvexDialog::Private::leave()
{
    running = false;
    shield->hide();
    border->hide();
    if (host) {
        host->hide();
    }
    if (loop) {
        loop->exit();
    }
    // The focus goes back to the application, which may then do anything: delete the dialog, too.
    DialogGuard::instance().remove(q);
}

void QvexDialog::Private::restack()
{
    border->stackUnder(q);
    shield->stackUnder(border.get());
}

QSize QvexDialog::Private::wantedSize() const
{
    const QLayout *layout = q->layout();
    QSize size = q->sizeHint();
    if (layout && layout->hasHeightForWidth()) {
        size.setHeight(layout->totalHeightForWidth(size.width()));
    }
    if (!size.isValid()) {
        const QRect children = q->childrenRect();
        size = QSize(children.right() + 1, children.bottom() + 1);
    }
    size = size.expandedTo(q->minimumSizeHint());
    return size.boundedTo(q->maximumSize()).expandedTo(q->minimumSize());
}

void QvexDialog::Private::fit()
{
    const QScopedValueRollback arrange(arranging, true);
    const bool fixed = q->testAttribute(Qt::WA_Resized);
    const QMargins around = margins();
    const QSize room = surface->size().shrunkBy(around);
    q->ensurePolished();
    const QSize size = fixed ? q->size() : wantedSize();
    q->resize(borderVisible ? size.boundedTo(room) : size);
    q->setAttribute(Qt::WA_Resized, fixed);
}

void QvexDialog::Private::place()
{
    const QScopedValueRollback arrange(arranging, true);
    const bool fixed = q->testAttribute(Qt::WA_Moved);
    const QMargins around = margins();
    const QSize size = q->size().grownBy(around);
    const QSize space = surface->size();
    if (fixed && q->pos() != placed) {
        home = q->pos();
    }
    QPoint pos(around.left(), around.top());
    pos = fixed ? home - pos : QRect({}, space).center() - QRect({}, size).center();
    if (border->isMovable()) {
        pos += m_moveOffset;
    }
    if (borderVisible) {
        const int bar = around.top() - border->panelMargins().top();
        pos = {clamped(pos.x(), size.width(), space.width(), bar, true),
               clamped(pos.y(), size.height(), space.height(), bar, false)};
    }
    placed = pos + QPoint(around.left(), around.top());
    q->move(placed);
    q->setAttribute(Qt::WA_Moved, fixed);
    follow();
}

/// Lets border and shield go with the dialog.
void QvexDialog::Private::follow()
{
    border->setGeometry(q->geometry().marginsAdded(border->margins()));
    shield->setGeometry(surface->rect());
}

void QvexDialog::Private::refresh()
{
    if (surface && q->isVisible()) {
        fit();
        place();
    }
}

/// For a window that goes out of sight, or goes altogether, with the dialogs in it.
void QvexDialog::Private::rejectAllIn(const QWidget *window)
{
    const auto stack = m_dialogStack;
    for (auto dialog = stack.crbegin(); dialog != stack.crend(); ++dialog) {
        if (*dialog && (*dialog)->d->surface == window) {
            (*dialog)->reject();
        }
    }
}

QvexDialog::QvexDialog()
    : QvexDialog(nullptr)
{
}

QvexDialog::QvexDialog(QWidget *parent)
    : QvexDialog(parent, true, true)
{
}

QvexDialog::QvexDialog(QWidget *parent, bool withBorderButtons, bool movable)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , d(std::make_unique<Private>(this, withBorderButtons, movable))
{
    init(withBorderButtons, movable);
}

QvexDialog::~QvexDialog()
{
    disconnect(d->ownerGone);
    disconnect(d->surfaceGone);
    m_dialogStack.removeAll(this);
    d->leave();
    if (d->host) {
        setParent(nullptr);
    }
}

void QvexDialog::init(bool withBorderButtons, bool movable)
{
    setAttribute(Qt::WA_NoMousePropagation);
    d->setOwner(parentWidget());
    const QvexDialogBorder &border = *d->border;
    connect(border.closeButton(), &QAbstractButton::clicked, this, &QvexDialog::closeDialog);
    connect(border.helpButton(), &QAbstractButton::clicked, this, &QvexDialog::helpDialog);
    d->border->setCloseVisible(withBorderButtons);
    if (movable) {
        using Border = QvexDialogBorder;
        const auto wire = [&](Border::Direction direction, void (QvexDialog::*slot)()) {
            connect(border.moveBar(direction), &QAbstractButton::clicked, this, slot);
        };
        wire(Border::Up, &QvexDialog::moveUpDialog);
        wire(Border::Down, &QvexDialog::moveDnDialog);
        wire(Border::Left, &QvexDialog::moveLtDialog);
        wire(Border::Right, &QvexDialog::moveRtDialog);
    }
}

QWidget *QvexDialog::parentApplication() const
{
    return d->parentApplication();
}

void QvexDialog::setParentApplication(QWidget *application)
{
    d->application = application;
}

bool QvexDialog::autoClose() const
{
    return d->autoClose;
}

void QvexDialog::setAutoClose(bool autoClose)
{
    d->autoClose = autoClose;
}

QString QvexDialog::helpUrl() const
{
    return d->helpUrl;
}

void QvexDialog::setHelpUrl(const QString &url)
{
    d->helpUrl = url;
    setHelpVisible(d->withButtons && !url.isEmpty());
}

void QvexDialog::setCloseVisible(bool visible)
{
    d->border->setCloseVisible(visible);
    d->refresh();
}

void QvexDialog::setHelpVisible(bool visible)
{
    d->border->setHelpVisible(visible);
    d->refresh();
}

void QvexDialog::setTitleVisible(bool visible)
{
    d->border->setTitleVisible(visible);
    d->refresh();
}

void QvexDialog::setBorderVisible(bool visible)
{
    d->borderVisible = visible;
    d->border->setVisible(visible && isVisible() && d->surface);
    d->refresh();
}

bool QvexDialog::isRunning() const
{
    return d->running;
}

void QvexDialog::setVisible(bool visible)
{
    if (visible == !isHidden()) {
        return;
    }
    if (visible) {
        d->enterSurface();
        // QDialog would give the focus to a widget behind.
        QWidget::setVisible(true);
        return;
    }
    const QPointer<QvexDialog> guard(this);
    QDialog::setVisible(false);
    if (guard && d->running) {
        // It was never really visible, so there was no hide event.
        leaveStack();
        d->leave();
    }
}

void QvexDialog::setRemoteLock(bool locked)
{
    m_remoteLocked = locked;
}

bool QvexDialog::isRemoteLocked()
{
    return m_remoteLocked;
}

void QvexDialog::cancellAllDialogBoxes()
{
    while (!m_dialogStack.isEmpty()) {
        const QPointer<QvexDialog> dialog = m_dialogStack.pop();
        if (dialog) {
            qCDebug(lcDialogs).noquote()
                << "QvexDialog::cancellAllDialogBoxes: closing" << dialog->objectName();
            dialog->reject();
        }
    }
}

QvexDialog *QvexDialog::activeDialog()
{
    return m_dialogStack.isEmpty() ? nullptr : m_dialogStack.top();
}

/// @return What exec() answers instead of running the dialog; nothing when it can run.
std::optional<int> QvexDialog::refusal() const
{
    if (d->running) {
        qCWarning(lcDialogs, "QDialog::exec() Recursive call detected");
        return -1;
    }
    if (m_remoteLocked) {
        qCDebug(lcDialogs).noquote() << "QvexDialog::exec: auto-cancel dialog" << objectName();
        return Rejected;
    }
    if (!parentApplication()) {
        qCWarning(lcDialogs, "QvexDialog::exec() NULL parent");
        return -1;
    }
    return std::nullopt;
}

void QvexDialog::run()
{
    hide();
    setResult(Rejected);
    d->running = true;
    m_dialogStack.push(this);
    show();
}

int QvexDialog::exec()
{
    if (const auto refused = refusal()) {
        return *refused;
    }
    const bool deleteOnClose = testAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_DeleteOnClose, false);
    const QPointer<QvexDialog> guard(this);
    QEventLoop loop;
    d->loop = &loop;
    run();
    if (guard && d->running) {
        loop.exec(QEventLoop::DialogExec);
    }
    if (!guard) {
        return Rejected;
    }
    d->loop = nullptr;
    if (d->running) {
        // The application quits.
        reject();
    }
    const int answer = guard ? result() : int(Rejected);
    if (guard && deleteOnClose) {
        delete this;
    }
    return answer;
}

void QvexDialog::open()
{
    const auto refused = refusal();
    if (!refused) {
        run();
    } else if (!d->running) {
        done(*refused);
    }
}

void QvexDialog::closeDialog()
{
    reject();
}

void QvexDialog::helpDialog()
{
    auto *help = new QvextHelpDialog(d->helpUrl);
    help->setParent(this);
    help->setAttribute(Qt::WA_DeleteOnClose);
    help->open();
}

void QvexDialog::moveDialog(int direction)
{
    if (!d->border->isMovable()) {
        return;
    }
    QPoint &offset = m_moveOffset;
    if (direction == QvexDialogBorder::Up && offset.y() > -FarthestY) {
        offset.ry() -= MoveStep;
    } else if (direction == QvexDialogBorder::Down && offset.y() < FarthestY) {
        offset.ry() += MoveStep;
    } else if (direction == QvexDialogBorder::Left && offset.x() > -FarthestX) {
        offset.rx() -= MoveStep;
    } else if (direction == QvexDialogBorder::Right && offset.x() < FarthestX) {
        offset.rx() += MoveStep;
    }
    d->refresh();
}

void QvexDialog::moveUpDialog()
{
    moveDialog(QvexDialogBorder::Up);
}

void QvexDialog::moveDnDialog()
{
    moveDialog(QvexDialogBorder::Down);
}

void QvexDialog::moveLtDialog()
{
    moveDialog(QvexDialogBorder::Left);
}

void QvexDialog::moveRtDialog()
{
    moveDialog(QvexDialogBorder::Right);
}

bool QvexDialog::event(QEvent *event)
{
    const bool handled = QDialog::event(event);
    switch (event->type()) {
    case QEvent::ParentChange:
        if (!d->arranging) {
            d->setOwner(parentWidget());
        }
        break;
    case QEvent::ZOrderChange:
        if (d->surface) {
            d->restack();
        }
        break;
    case QEvent::LayoutRequest:
        d->refresh();
        break;
    default:
        break;
    }
    return handled;
}

void QvexDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange) {
        d->border->setTitle(windowTitle());
        d->refresh();
    }
}

/// Not QDialog's, which would centre a dialog as if it were a window.
void QvexDialog::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        initSize();
        d->showAround();
    }
}

/// Sizes the border around the dialog.
void QvexDialog::initSize()
{
    if (!d->surface) {
        qCWarning(lcDialogs, "QvexDialog::initSize() NULL parent");
        return;
    }
    d->follow();
}

void QvexDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous()) {
        return;
    }
    if (d->running) {
        leaveStack();
    }
    d->leave();
}

void QvexDialog::leaveStack()
{
    const auto at = m_dialogStack.lastIndexOf(this);
    const char *where = "is not found in the stack.";
    if (m_dialogStack.isEmpty()) {
        qCDebug(lcDialogs).noquote()
            << "QvexDialog::hideEvent" << objectName() << "while the stack is empty.";
    } else if (at < 0) {
        // cancellAllDialogBoxes() takes dialogs off the stack before it closes them.
        qCDebug(lcDialogs).noquote() << "QvexDialog::hideEvent:" << objectName() << where;
    } else if (at != m_dialogStack.size() - 1) {
        where = "is not at the top of the stack.";
        qCWarning(lcDialogs).noquote() << "QvexDialog::hideEvent:" << objectName() << where;
    }
    if (at >= 0) {
        m_dialogStack.removeAt(at);
    }
}

void QvexDialog::moveEvent(QMoveEvent *event)
{
    QDialog::moveEvent(event);
    if (d->arranging || !d->surface) {
        return;
    }
    d->home = pos();
    if (d->border->isMovable()) {
        d->home -= m_moveOffset;
    }
    d->placed = pos();
    d->follow();
}

void QvexDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (!d->arranging && d->surface) {
        d->follow();
    }
}

void QvexDialog::keyPressEvent(QKeyEvent *event)
{
    static const QHash<int, QvexDialogBorder::Direction> directions {
        {Qt::Key_Up, QvexDialogBorder::Up},
        {Qt::Key_Down, QvexDialogBorder::Down},
        {Qt::Key_Left, QvexDialogBorder::Left},
        {Qt::Key_Right, QvexDialogBorder::Right},
    };
    const bool moves = event->modifiers().testFlag(Qt::AltModifier);
    if (event->matches(QKeySequence::Cancel)) {
        closeDialog();
    } else if (event->matches(QKeySequence::HelpContents) && !d->border->helpButton()->isHidden()) {
        helpDialog();
    } else if (moves && directions.contains(event->key())) {
        moveDialog(directions.value(event->key()));
    } else {
        QDialog::keyPressEvent(event);
    }
}

bool QvexDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->surface) {
        if (event->type() == QEvent::Resize) {
            d->refresh();
        } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
            // The newest first, before each would be hidden as a child.
            Private::rejectAllIn(d->surface);
            return false;
        }
    }
    return QDialog::eventFilter(watched, event);
}
