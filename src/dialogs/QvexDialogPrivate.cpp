#include "QvexDialog_p.h"

#include <QEventLoop>
#include <QLayout>
#include <QScopedValueRollback>
#include <QScreen>

#include <utility>

#include "DialogGuard.h"
#include "DialogTheme.h"

using namespace Qt::StringLiterals;

namespace {

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

QvexDialog::Private::Private(QvexDialog *dialog, bool withBorderButtons)
    : q(dialog)
    , withButtons(withBorderButtons)
{
}

/// Whoever deletes what is in the parent application deletes the border as well, and the shield,
/// but not necessarily the dialog. It is hidden then, and gets new ones.
void QvexDialog::Private::makeBorder(bool withBorderButtons, bool movable)
{
    border = std::make_unique<QvexDialogBorder>(withBorderButtons, movable);
    q->initBorder(withBorderButtons, movable);
    connect(border.get(), &QObject::destroyed, q, [this, withBorderButtons, movable] {
        static_cast<void>(border.release());
        makeBorder(withBorderButtons, movable);
        border->setTitle(title);
        border->setHelpVisible(withBorderButtons && !helpUrl.isEmpty());
        q->hide();
    });
}

void QvexDialog::Private::makeShield()
{
    shield = std::make_unique<QWidget>();
    shield->setObjectName(u"DlgShield"_s);
    shield->setAttribute(Qt::WA_NoMousePropagation);
    shield->setAutoFillBackground(true);
    connect(shield.get(), &QObject::destroyed, q, [this] {
        static_cast<void>(shield.release());
        makeShield();
        q->hide();
    });
}

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
        ownerGone = connect(owner, &QObject::destroyed, q, [this, dying = owner.data()] {
            DialogGuard::instance().forgetFocusOf(dying);
            delete q;
        });
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

void QvexDialog::Private::show()
{
    const QPointer<QvexDialog> guard(q);
    const bool fixed = q->testAttribute(Qt::WA_Resized);
    // Or else it would get its size hint, however large, for a size.
    q->setAttribute(Qt::WA_Resized, fixed || surface);
    // QDialog would give the focus to a widget behind.
    q->QWidget::setVisible(true);
    if (guard) {
        q->setAttribute(Qt::WA_Resized, fixed);
    }
}

void QvexDialog::Private::moveTo(QWidget *target)
{
    const QScopedValueRollback arrange(arranging, true);
    // It is forgotten when the dialog gets another parent.
    focusFirst = q->focusWidget();
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
    DialogGuard::instance().forgetFocusOf(surface);
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
    // First of all, for else it would raise the other dialogs above this one.
    DialogGuard::instance().add(q, border.get(), shield.get());
    DialogGuard::instance().shade();
    shield->setVisible(running && surface);
    if (borderVisible) {
        border->show();
    }
    if (surface) {
        q->raise();
        restack();
    }
    if (running) {
        DialogGuard::moveFocusInto(q, focusFirst);
    }
}

void QvexDialog::Private::leave()
{
    running = false;
    shield->hide();
    border->hide();
    if (host) {
        host->hide();
    }
    if (QEventLoop *ended = std::exchange(loop, nullptr)) {
        ended->exit();
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
