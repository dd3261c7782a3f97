#pragma once

#include <memory>

#include "dialogs/QvexDialog.h"

#include "VexExport.h"

/**
 * The direction keys on the screen, with which a number is edited digit by digit: up, down, left
 * and right, a key that opens the number pad, and a bar with two keys that move the others up and
 * down the screen.
 *
 * There is one for the application. It is shown, not run: what is behind stays alive. It slides in
 * at the right edge of a window: the one with the focus in it, else the one named "FwMainWindow",
 * else the active one, else any that is visible. setParentApplication() determines another. When
 * that window is hidden or goes away, the panel is hidden.
 *
 * It knows nothing of what is edited and tells by signals what the user does. A tap beside the keys
 * hides it. The place of the keys is kept in the property 101.
 */
class VEX_EXPORT QLrudDialog : public QvexDialog
{
    Q_OBJECT

public:
    /** The panel, which is made on first use. It stays until Destroy() or the application's end. */
    static QLrudDialog *Instance();
    /** Hides and deletes the panel, if there is one. The next Instance() is another. */
    static void Destroy();

    ~QLrudDialog() override;

    /** Gives the four arrow keys the look of released ones. Tells nobody. */
    void releaseAllButton();

    void setVisible(bool visible) override;

Q_SIGNALS:
    /**
     * A wheel was turned over the panel by whole notches, upward for positive numbers. The override
     * is -1: the edited field acts as its mode says.
     */
    void advanceWheel(int numSteps, int modeOverride);
    /** The wheel was pressed over the panel. */
    void modeChanged();
    /** What is pressed is also released, even when the panel is hidden meanwhile. */
    void pressedUp();
    void releasedUp();
    void pressedDown();
    void releasedDown();
    void pressedLeft();
    void pressedRight();
    void clickedShowNumpad();
    /** Once, whatever hid the panel, which may be its end. */
    void hidden();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void on_MoveUp();
    void on_MoveDown();
    void on_UpPressed();
    void on_UpRelesed();
    void on_DownPressed();
    void on_DownRelesed();
    void on_LeftPressed();
    void on_LeftRelesed();
    void on_RightPressed();
    void on_RightRelesed();

private:
    struct Private;

    QLrudDialog();

    static QLrudDialog *m_Instance;
    static int m_controllerPosition;

    const std::unique_ptr<Private> d;
};
