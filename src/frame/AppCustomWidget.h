#pragma once

#include <QPointer>
#include <QVector>

#include "SidePanel.h"

/**
 * A panel over the whole frame for whatever the application puts into it. Slides in from the
 * trailing edge; the handle at its leading one shuts it by a tap or a pull.
 */
class VEX_EXPORT AppCustomWidget : public SidePanel
{
    Q_OBJECT

public:
    /** The object name is "AppCustomWidgetFrame". */
    explicit AppCustomWidget(QWidget *parent);

    /**
     * Re-parents @p widget into the panel, above those that are there. It fills the panel beside
     * the handle; one with a maximum size is centred there. @return false for none.
     */
    bool registerWidget(QWidget *widget);

public Q_SLOTS:
    void showPanel();
    void hidePanel();

Q_SIGNALS:
    /** Once for each change, at the end of the slide. */
    void customPanelShown(bool shown);

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void placeContents();

    QVector<QPointer<QWidget>> m_contents;
};
