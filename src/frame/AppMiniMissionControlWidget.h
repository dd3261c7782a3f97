#pragma once

#include <QSize>
#include <QWidget>

#include <memory>

#include "VexExport.h"

/**
 * Small panels of an application at the trailing edge (the right one, in a left-to-right layout).
 *
 * Each has a button that lies at the edge, one below the other; a tap or pull slides the panel in
 * beside it, and those below make room. When there is not enough room for all that are open, those
 * opened first are shut.
 *
 * Buttons and panels are children of the parent and are visible as long as this widget is, which
 * has no extent of its own: what is between them can be touched.
 */
class VEX_EXPORT AppMiniMissionControlWidget : public QWidget
{
    Q_OBJECT

public:
    explicit AppMiniMissionControlWidget(QWidget *parent);
    ~AppMiniMissionControlWidget() override;

    /**
     * Re-parents @p widget into a panel of @p width by @p height pixels. Panels are ordered by
     * @p position, equal ones as they came. A widget that is registered already is given the new
     * size and position. A widget's panel goes when the widget is deleted.
     */
    void registerWidget(QWidget *widget, int width, int height, int position);
    /** Slides the panel of @p widget in; with @p exclusive, the others out. */
    void showPanel(QWidget *widget, bool exclusive = false);
    void hidePanel(QWidget *widget);
    bool isPanelShown(const QWidget *widget) const;

    /** The widget's window title by default. */
    void setExpandButtonText(QWidget *widget, const QString &text);
    /** @p name is that of a resource or file. */
    void setExpandButtonIcon(QWidget *widget, const QString &name);
    /** 48 by 48 pixels or more, less is made that; as text and icon need it by default. */
    void setExpandButtonSize(QWidget *widget, const QSize &size);

    /** Of the slides, in milliseconds; 500 by default. */
    void setDuration(int milliseconds);
    void layoutIn(const QRect &area);

protected:
    bool event(QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
