#include "QvexDialog.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QKeyEvent>

#include "DialogsLogging.h"
#include "QvexDialog_p.h"
#include "QvextHelpDialog.h"

using namespace Qt::StringLiterals;

QStack<QPointer<QvexDialog>> QvexDialog::m_dialogStack;
bool QvexDialog::m_remoteLocked = false;
QPoint QvexDialog::m_moveOffset;

namespace {

constexpr int MoveStep = 10;
constexpr int FarthestX = 350;
constexpr int FarthestY = 250;

} // namespace

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
    , d(std::make_unique<Private>(this, withBorderButtons))
{
    init(withBorderButtons, movable);
}

QvexDialog::~QvexDialog()
{
    d->border->disconnect(this);
    d->shield->disconnect(this);
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
    d->makeShield();
    d->makeBorder(withBorderButtons, movable);
}

/// Wires a border that is new.
void QvexDialog::initBorder(bool withBorderButtons, bool movable)
{
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
        d->show();
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
    const QPointer<QvexDialog> guard(this);
    hide();
    if (!guard) {
        return;
    }
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
    run();
    if (guard && d->running) {
        d->loop = &loop;
        loop.exec(QEventLoop::DialogExec);
    }
    if (!guard) {
        return Rejected;
    }
    if (d->loop == &loop) {
        // The dialog runs on, but the application quits. Were it done, it might run anew by now.
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
        if (accessibleName().isEmpty() || accessibleName() == d->title) {
            setAccessibleName(windowTitle());
        }
        d->title = windowTitle();
        d->border->setTitle(d->title);
        d->refresh();
    }
}

/// Not QDialog's, which would centre a dialog as if it were a window.
void QvexDialog::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event); // NOLINT(bugprone-parent-virtual-call)
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
    if (!d->arranging) {
        d->refresh();
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
