#pragma once

#include <QDialog>
#include <QPointer>
#include <QStack>

#include <memory>
#include <optional>

#include "VexExport.h"

/**
 * The base of all modal windows: a frameless dialog inside a QvexDialogBorder.
 *
 * A dialog is drawn inside its parent application's window, as a child widget above everything else
 * there, so that it can be moved on any platform. What is behind a running dialog, in this window
 * or another of the application, gets neither touches nor keys. It is placed in the window's centre
 * unless move() said otherwise, and is never larger than the window leaves room for. A subclass
 * fills it with a layout like any QDialog.
 *
 * The parent given to the constructor, or to setParent(), owns the dialog as usual: it is deleted
 * with it, even while it runs. While it is shown, parentWidget() is the parent application.
 *
 * From a keyboard Escape closes, F1 helps and Alt with an arrow key moves.
 */
class VEX_EXPORT QvexDialog : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(bool autoClose READ autoClose WRITE setAutoClose)
    Q_PROPERTY(QString helpUrl READ helpUrl WRITE setHelpUrl)

public:
    QvexDialog();
    explicit QvexDialog(QWidget *parent);
    /**
     * @p withBorderButtons gives the border its close button, and its help button as soon as there
     * is a help URL; @p movable the four move bars. Other constructors give both.
     */
    QvexDialog(QWidget *parent, bool withBorderButtons, bool movable);
    ~QvexDialog() override;

    /**
     * The window that the dialog is drawn in, and is centred and kept inside of. Unless it was set
     * this is the parent's ancestor with the object name "FwMainWindow", else the parent's window.
     * Null without a parent.
     */
    QWidget *parentApplication() const;
    /** From the next time it is shown. @p application is not owned and does not own the dialog. */
    void setParentApplication(QWidget *application);

    /**
     * Whether a tap outside the dialog rejects it; false by default. That tap reaches nothing
     * behind the dialog, even when the dialog was merely shown.
     */
    bool autoClose() const;
    void setAutoClose(bool autoClose);

    /** What helpDialog() shows: a file, a resource or their URL. Empty by default. */
    QString helpUrl() const;
    /** Also shows the help button, if the border has buttons and @p url is not empty. */
    virtual void setHelpUrl(const QString &url);

    void setCloseVisible(bool visible);
    void setHelpVisible(bool visible);
    /** The title is the windowTitle. */
    void setTitleVisible(bool visible);
    /** Without its border a dialog has no background either. */
    void setBorderVisible(bool visible);

    /** Whether the dialog runs: from exec() or open() until it is hidden. */
    bool isRunning() const;

    void setVisible(bool visible) override;

    /** While set, exec() and open() end at once with Rejected. Running dialogs stay. */
    static void setRemoteLock(bool locked);
    static bool isRemoteLocked();
    /**
     * Rejects all running dialogs, newest first, also those that slots of finished() open
     * meanwhile.
     */
    static void cancellAllDialogBoxes();
    /** The newest running dialog; null when none runs. */
    static QvexDialog *activeDialog();

public Q_SLOTS:
    /**
     * Runs the dialog modally until it is done or hidden, and returns its result: Rejected when it
     * was merely hidden, when it was deleted, when its window was closed and when the application
     * quits. Returns Rejected at once under the remote lock, and -1 without a parent or when the
     * dialog runs already.
     */
    int exec() override;
    /**
     * Runs the dialog modally but returns at once; finished() tells the result. Where exec() would
     * not run the dialog, finished() comes from within this call, with the same result.
     */
    void open() override;

    /** What the close button and Escape do: rejects. */
    virtual void closeDialog();
    /** Opens a QvextHelpDialog on helpUrl(). */
    void helpDialog();

    /**
     * Moves a movable dialog by 10 pixels: 1 up, 2 down, 3 left, 4 right. The offset from the place
     * where dialogs appear is shared by all movable dialogs and holds for the next ones; it stays
     * within 350 pixels horizontally and 250 vertically. A dialog goes with it as far as it stays
     * inside the parent application.
     */
    void moveDialog(int direction);
    void moveUpDialog();
    void moveDnDialog();
    void moveLtDialog();
    void moveRtDialog();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Private;

    void init(bool withBorderButtons, bool movable);
    void initBorder(bool withBorderButtons, bool movable);
    void initSize();
    std::optional<int> refusal() const;
    void run();
    void leaveStack();

    static QStack<QPointer<QvexDialog>> m_dialogStack;
    static bool m_remoteLocked;
    static QPoint m_moveOffset;

    const std::unique_ptr<Private> d;
};
