#pragma once

#include <memory>

#include "SlidePanel.h"

/**
 * A panel over all of the area that comes from the trailing edge, with a handle at its leading one
 * by which it is shut.
 */
class VEX_EXPORT SidePanel : public SlidePanel
{
    Q_OBJECT

public:
    explicit SidePanel(QWidget *parent);

    /** Whether the panel is in, or on its way. */
    bool isPanelShown() const;

Q_SIGNALS:
    /** Once for each change, at the end of the slide. */
    void panelShown(bool shown);

protected:
    /** What is beside the handle. */
    QRect contentRect() const;
    QRect openGeometry(const QRect &area) const override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void updateHandle();
    void tellChange(bool isIn);

    PanelButton *m_handle; ///< a child
    bool m_wasIn = false;
};
