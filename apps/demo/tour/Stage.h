#pragma once

#include <QDir>
#include <QImage>
#include <QMetaObject>
#include <QString>

#include <functional>
#include <type_traits>

#include "Finger.h"

class QWidget;

/// A check of the tour that did not hold.
struct Missed
{
    QString what;
};

/**
 * The window as a tour sees it from its own thread: what is on it, and a finger.
 *
 * All widgets belong to the GUI thread, so whatever looks at one is a function that ask() runs
 * there. The tour itself is on another thread, since a tap may open a dialog that runs an event
 * loop of its own, and does not come back before the dialog is closed by the tap after it.
 *
 * Everything that is looked for is waited for, and Missed is thrown when it does not come.
 */
class Stage
{
public:
    /// Made on the GUI thread. @p window is not owned.
    Stage(QWidget &window, const QString &pictureFolder);

    template<typename Function>
    std::invoke_result_t<Function> ask(Function function) const
    {
        std::invoke_result_t<Function> result {};
        QMetaObject::invokeMethod(
            m_context, [&] { result = function(); }, Qt::BlockingQueuedConnection);
        return result;
    }

    /// Waits until it holds, as seen on the GUI thread. @p what says what was expected. The limit
    /// is for a machine that has much else to do; where all is well it is never reached.
    void expect(const QString &what, const std::function<bool()> &condition,
                int milliseconds = 90000) const;

    /// The visible widget of that name; null if there is none. GUI thread.
    QWidget *shown(const QString &name) const;
    /// Its text property. GUI thread.
    QString text(const QString &name) const;

    void expectShown(const QString &name) const;
    void expectGone(const QString &name) const;
    void expectText(const QString &name, const QString &text) const;

    /// Taps a widget in its middle; its name may be followed by "|" and the text of a
    /// button or label in it.
    void tap(const QString &name);
    void tapAt(QPoint position);
    /// Taps the row of a list or tree that shows this text.
    void tapRow(const QString &list, const QString &text);
    void drag(QPoint from, QPoint to);
    /// Two fingers, @p from pixels apart at first and @p to at the end, around @p centre.
    void pinch(QPoint centre, int from, int to);
    void turnWheel(const QString &name, int notches);
    /// Middle of a widget, in the window, as soon as it stands still and nothing covers it.
    QPoint place(const QString &name) const;

    /// Saves what the window looks like, when it stands still, as "NN-name.png".
    void picture(const QString &name);

private:
    void post(const std::function<void()> &action) const;
    QWidget *target(const QString &name) const;
    void scrollTo(const QString &name) const;
    QPoint middle(const QString &name) const;
    QPoint row(const QString &list, const QString &text) const;
    QPoint standing(const QString &what, const std::function<QPoint()> &find) const;

    QWidget &m_window;
    QObject *m_context; ///< lives on the GUI thread
    Finger m_finger;
    QDir m_folder;
    int m_pictures = 0;
};
