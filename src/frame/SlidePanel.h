#pragma once

#include <QFrame>

#include <memory>

#include "VexExport.h"

class PanelButton;

/**
 * A panel that slides into its parent over an edge and back, by program or by finger.
 *
 * Shut, the panel is hidden. A grip, if it has one, is a sibling that rides on the panel's leading
 * side and stays within reach: a tap on it slides, a pull moves the panel with the finger. The
 * panel's own ground can be pulled as well. Let go of, the panel goes where a flick sends it;
 * without one, onwards if it has come a third of the way, else back.
 *
 * Its ground and texts have the colours of panels of the ColorTheme.
 *
 * Slides move the panel and never change its size. When the parent is resized it calls layoutIn();
 * a slide under way goes on to the new place.
 */
class VEX_EXPORT SlidePanel : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int duration READ duration WRITE setDuration)

public:
    /** Where the panel comes from. */
    enum class Side {
        Bottom,
        Trailing, ///< the right, or the left in a right-to-left layout
    };

    SlidePanel(Side side, QWidget *parent);
    ~SlidePanel() override;

    Side side() const;

    /** Of a slide over the whole way, in milliseconds; 500 by default, 0 is at once. */
    int duration() const;
    void setDuration(int milliseconds);

    /** Whether the panel is shut, or on its way to it. */
    bool isOut() const;
    /** While it is moved, be it by a slide or by a finger. */
    bool isMoving() const;

    /** Gives the panel its place in @p area of the parent. */
    void layoutIn(const QRect &area);

public Q_SLOTS:
    void slideIn();
    void slideOut();

Q_SIGNALS:
    void slideStarted(bool isIn);
    /** A slide is over, or a pull that had moved the panel. Emitted once for each. */
    void slideEnded(bool isIn);

protected:
    /** The rectangle of the open panel. */
    virtual QRect openGeometry(const QRect &area) const = 0;
    /** The panel comes in: above all other children of the parent, by default. */
    virtual void bringForward();
    /** The panel and its grip are to be moved to where fraction() puts them. */
    virtual void fractionChanged();
    /** Asks for the open panel's rectangle anew, and moves panel and grip accordingly. */
    void relocate();

    /** How far in the panel is, from 0 (shut) to 1. */
    qreal fraction() const;
    /** What layoutIn() was given; the parent's rectangle before. */
    QRect area() const;

    /** Belongs to the panel, and is its sibling. */
    void setGrip(PanelButton *grip);
    PanelButton *grip() const;
    /** Where the grip is with the panel where it is; beside its leading side by default. */
    virtual QPoint gripPosition() const;
    /** Lets the panel be pulled by @p handle, one of its children. */
    void addHandle(QWidget *handle);

    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
