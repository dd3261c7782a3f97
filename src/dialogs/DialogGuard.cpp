#include "DialogGuard.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSet>
#include <QShortcutEvent>

#include <algorithm>

#include "DialogTheme.h"
#include "QvexDialog.h"

namespace {

bool canTakeFocus(const QWidget *widget, const QWidget *dialog)
{
    return widget && dialog->isAncestorOf(widget) && widget->isEnabled()
        && widget->isVisibleTo(dialog);
}

/// Lets a widget go that was pressed before the dialog came, without a click.
void releaseElsewhere(QWidget *widget, const QMouseEvent &event)
{
    const QPointF outside(-10000, -10000);
    QMouseEvent release(event.type(), outside, outside, outside, event.button(), event.buttons(),
                        event.modifiers(), event.pointingDevice());
    static_cast<QObject *>(widget)->event(&release);
}

} // namespace

DialogGuard &DialogGuard::instance()
{
    static QPointer<DialogGuard> guard;
    if (!guard) {
        guard = new DialogGuard;
        guard->setParent(qApp);
    }
    return *guard;
}

DialogGuard::DialogGuard()
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { keepFocus(now); });
}

bool DialogGuard::Entry::contains(const QWidget *widget) const
{
    // Through the windows as well, to the list of a combo box for one.
    while (widget && widget != dialog && widget != border) {
        widget = widget->parentWidget();
    }
    return widget;
}

/// Whether what is behind gets no touches.
bool DialogGuard::Entry::blocks() const
{
    return dialog->isRunning() || dialog->autoClose();
}

bool DialogGuard::Entry::isPart(const QObject *object) const
{
    return object == dialog || object == border || object == shield;
}

void DialogGuard::add(QvexDialog *dialog, QWidget *border, QWidget *shield)
{
    QWidget *focus = QApplication::focusWidget();
    m_entries.append({dialog, border, shield, focus ? focus : dialog->window()->focusWidget()});
}

/// With each shield as dark as the lowest, the application would be black behind three dialogs.
void DialogGuard::shade()
{
    QSet<const QWidget *> shaded;
    for (const Entry &entry : std::as_const(m_entries)) {
        if (entry.dialog->isRunning()) {
            const QWidget *window = entry.shield->window();
            entry.shield->setPalette(DialogTheme::shieldColor(!shaded.contains(window)));
            shaded.insert(window);
        }
    }
}

void DialogGuard::moveFocusInto(QvexDialog *dialog, QWidget *first)
{
    QWidget *target = first ? first : dialog->focusWidget();
    if (!canTakeFocus(target, dialog)) {
        target = dialog->nextInFocusChain();
        while (target != dialog
               && !(target->focusPolicy() & Qt::TabFocus && canTakeFocus(target, dialog))) {
            target = target->nextInFocusChain();
        }
    }
    target->setFocus(Qt::OtherFocusReason);
}

void DialogGuard::remove(QvexDialog *dialog)
{
    const auto entry = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&](const Entry &e) { return e.dialog == dialog; });
    if (entry == m_entries.cend()) {
        return;
    }
    const QPointer<QWidget> before = entry->focusBefore;
    m_entries.erase(entry);
    shade();
    // Not the application's focus widget: its window need not be the active one just now.
    const QWidget *now = dialog->window()->focusWidget();
    const bool hadFocus = now && (now == dialog || dialog->isAncestorOf(now));
    if (hadFocus && before && before->isVisible() && before->isEnabled()) {
        before->setFocus(Qt::OtherFocusReason);
    }
}

void DialogGuard::forgetFocusOf(const QWidget *widget)
{
    for (Entry &entry : m_entries) {
        if (entry.focusBefore == widget) {
            entry.focusBefore = nullptr;
        }
    }
}

const DialogGuard::Entry *DialogGuard::newestBlocking() const
{
    const auto entry = std::find_if(m_entries.crbegin(), m_entries.crend(),
                                    [](const Entry &e) { return e.blocks(); });
    return entry == m_entries.crend() ? nullptr : &*entry;
}

bool DialogGuard::isOpenTo(const QWidget *widget) const
{
    const QWidget *window = widget->window();
    for (auto entry = m_entries.crbegin(); entry != m_entries.crend(); ++entry) {
        if (entry->contains(widget)) {
            return true;
        }
        if (entry->blocks()) {
            // The toolkit takes care of what is modal for itself, and is above the dialog.
            const bool above = window->isModal() && window != entry->dialog->window();
            return above || window->windowType() == Qt::Popup;
        }
    }
    return true;
}

/// @p owner is what a shortcut belongs to.
bool DialogGuard::isOpenToOwner(const QObject *owner) const
{
    if (const auto *action = qobject_cast<const QAction *>(owner)) {
        const QList<QObject *> users = action->associatedObjects();
        return std::any_of(users.cbegin(), users.cend(), [this](const QObject *user) {
            const auto *widget = qobject_cast<const QWidget *>(user);
            return widget && isOpenTo(widget);
        });
    }
    while (owner && !owner->isWidgetType()) {
        owner = owner->parent();
    }
    return !owner || isOpenTo(static_cast<const QWidget *>(owner));
}

/// Something else in the parent application came to the front, where the dialogs belong.
void DialogGuard::raiseAbove(const QWidget *widget)
{
    const Entry *blocking = newestBlocking();
    const bool covers = blocking && widget->parentWidget() == blocking->dialog->parentWidget()
        && !widget->isWindow()
        && std::none_of(m_entries.cbegin(), m_entries.cend(),
                        [&](const Entry &entry) { return entry.isPart(widget); });
    if (covers) {
        for (const Entry &entry : std::as_const(m_entries)) {
            entry.dialog->raise();
        }
    }
}

void DialogGuard::keepFocus(QWidget *now)
{
    const Entry *blocking = newestBlocking();
    if (now && blocking && blocking->dialog->isRunning() && !isOpenTo(now)) {
        moveFocusInto(blocking->dialog);
    }
}

bool DialogGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Shortcut) {
        return filterShortcut(watched);
    }
    if (!watched->isWidgetType() || (m_entries.isEmpty() && !m_pressSwallowed)) {
        return false;
    }
    auto *widget = static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::ZOrderChange:
        raiseAbove(widget);
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return filterKey(widget, static_cast<QKeyEvent *>(event));
    default:
        return filterPointer(widget, event);
    }
}

bool DialogGuard::filterPointer(QWidget *widget, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return filterPress(widget);
    case QEvent::MouseButtonRelease:
        return filterRelease(widget, *static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        return !isOpenTo(widget);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        if (!isOpenTo(widget)) {
            // What is not accepted comes again as mouse events.
            event->ignore();
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool DialogGuard::filterPress(QWidget *widget)
{
    m_pressSwallowed = !isOpenTo(widget);
    m_tappedOutside = m_pressSwallowed ? newestBlocking()->dialog : nullptr;
    return m_pressSwallowed;
}

bool DialogGuard::filterRelease(QWidget *widget, const QMouseEvent &event)
{
    if (m_pressSwallowed) {
        m_pressSwallowed = false;
        // Not at the press: what is behind would then get the release.
        if (m_tappedOutside && m_tappedOutside->autoClose() && m_tappedOutside->isVisible()) {
            m_tappedOutside->reject();
        }
        return true;
    }
    if (isOpenTo(widget)) {
        return false;
    }
    releaseElsewhere(widget, event);
    return true;
}

bool DialogGuard::filterKey(QWidget *widget, QKeyEvent *event)
{
    const bool lookedUp = std::exchange(m_lookedUp, false);
    if (event->type() == QEvent::ShortcutOverride) {
        if (lookedUp) {
            event->accept();
            return true;
        }
        m_lastOverride.reset(event->clone());
    }
    const Entry *blocking = newestBlocking();
    if (!blocking || !blocking->dialog->isRunning() || isOpenTo(widget)) {
        return false;
    }
    const QWidget *focus = QApplication::focusWidget();
    const bool passedOn = event == m_redirected || (focus && isOpenTo(focus));
    if (passedOn || event->type() != QEvent::KeyPress) {
        event->ignore();
        return true;
    }
    // No widget of the dialog has the focus, because it was disabled for one.
    redirect(event, blocking->dialog);
    return true;
}

void DialogGuard::redirect(QKeyEvent *event, QWidget *target)
{
    const QScopedValueRollback<const QKeyEvent *> redirected(m_redirected, event);
    // Sending it would else look among the shortcuts once more, and end here again.
    m_lookedUp = true;
    QCoreApplication::sendEvent(target, event);
}

/// A key that is a shortcut of what is behind goes to the dialog as an ordinary key.
bool DialogGuard::filterShortcut(const QObject *owner)
{
    const Entry *blocking = newestBlocking();
    if (!blocking || !blocking->dialog->isRunning() || isOpenToOwner(owner)) {
        return false;
    }
    if (m_lastOverride) {
        QWidget *focus = QApplication::focusWidget();
        const bool inside = focus && isOpenTo(focus);
        QKeyEvent press(QEvent::KeyPress, m_lastOverride->key(), m_lastOverride->modifiers(),
                        m_lastOverride->text(), m_lastOverride->isAutoRepeat());
        redirect(&press, inside ? focus : blocking->dialog);
    }
    return true;
}
