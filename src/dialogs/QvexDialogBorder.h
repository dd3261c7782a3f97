#pragma once

#include <QWidget>

#include <memory>

#include "VexExport.h"

class QAbstractButton;

/**
 * The border around a QvexDialog: a panel with a title, a help and a close button, and a bar for
 * moving at each side. It is a sibling of the dialog, right behind it.
 */
class VEX_EXPORT QvexDialogBorder : public QWidget
{
    Q_OBJECT

public:
    enum Direction { Up = 1, Down = 2, Left = 3, Right = 4 };

    /** @p withButtons shows the close button; the help button starts hidden. */
    QvexDialogBorder(bool withButtons, bool movable, QWidget *parent = nullptr);
    ~QvexDialogBorder() override;

    bool isMovable() const;
    /** What the panel takes around the dialog, without the move bars. */
    QMargins panelMargins() const;
    /** What the whole border takes around the dialog. */
    QMargins margins() const;

    QAbstractButton *closeButton() const;
    QAbstractButton *helpButton() const;
    /** Null when the border is not movable. */
    QAbstractButton *moveBar(Direction direction) const;

    /** A title that is too long is elided and becomes the label's tool tip. */
    void setTitle(const QString &title);
    void setTitleVisible(bool visible);
    void setCloseVisible(bool visible);
    void setHelpVisible(bool visible);

    void setVisible(bool visible) override;

    /**
     * The window that a dialog of @p widget belongs into: its ancestor (or itself) with the object
     * name "FwMainWindow", else its window.
     */
    static QWidget *applicationWindow(QWidget *widget);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
