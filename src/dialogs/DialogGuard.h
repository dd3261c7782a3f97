#pragma once

#include <QKeyEvent>
#include <QList>
#include <QObject>
#include <QPointer>

#include <memory>

class QvexDialog;

/**
 * Keeps touches and keys away from what is behind the shown dialogs, and the focus inside.
 *
 * Dialogs are child widgets, so the toolkit's own modality, which is one of windows, can't do this.
 * There is one guard for the application; it filters all events of its widgets.
 */
class DialogGuard : public QObject
{
    Q_OBJECT

public:
    static DialogGuard &instance();

    /** @p dialog is above those that were added before it. */
    void add(QvexDialog *dialog, QWidget *border, QWidget *shield);
    /** Gives the shields of running dialogs their colours, by which of them are the lowest. */
    void shade();
    /** Gives the focus to @p first, else to the first in @p dialog, which was added. */
    static void moveFocusInto(QvexDialog *dialog, QWidget *first = nullptr);
    /** Gives the focus of a dialog that ran back to where it was. Does nothing if not added. */
    void remove(QvexDialog *dialog);
    /** The focus does not go back to @p widget, which is being destroyed. */
    void forgetFocusOf(const QWidget *widget);
    /** Whether no dialog keeps touches and keys from @p widget. */
    bool isOpenTo(const QWidget *widget) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Entry
    {
        QvexDialog *dialog;
        QWidget *border;
        QWidget *shield;
        QPointer<QWidget> focusBefore;

        bool blocks() const;
        bool contains(const QWidget *widget) const;
        bool isPart(const QObject *object) const;
    };

    DialogGuard();
    const Entry *newestBlocking() const;
    bool isOpenToOwner(const QObject *owner) const;
    void raiseAbove(const QWidget *widget);
    void keepFocus(QWidget *now);

    bool filterPointer(QWidget *widget, QEvent *event);
    bool filterPress(QWidget *widget);
    bool filterRelease(QWidget *widget, const QMouseEvent &event);
    bool filterKey(QWidget *widget, QKeyEvent *event);
    bool filterShortcut(const QObject *owner);
    void redirect(QKeyEvent *event, QWidget *target);

    QList<Entry> m_entries;
    bool m_pressSwallowed = false;
    const QKeyEvent *m_redirected = nullptr; ///< a dialog that ignores it passes it on to here
    bool m_lookedUp = false;
    QPointer<QvexDialog> m_tappedOutside;
    std::unique_ptr<QKeyEvent> m_lastOverride;
};
