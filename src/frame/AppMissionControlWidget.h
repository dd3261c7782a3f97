#pragma once

#include <QString>

#include <memory>

#include "AppMissionControlWidth.h"
#include "AppPassFail.h"
#include "SlidePanel.h"

/**
 * The application's mission control: who it is, how far it is, what came of it, and the ways out.
 *
 * Comes up from the lower edge of its parent. Shut, only its grip is to be seen, at the bottom
 * centre of the area that it was laid out in. Touching the parent beside the open panel shuts it.
 */
class VEX_EXPORT AppMissionControlWidget : public SlidePanel
{
    Q_OBJECT

public:
    explicit AppMissionControlWidget(QWidget *parent);
    ~AppMissionControlWidget() override;

    /** Re-parents @p widget into the panel's grid, below the others. @return false for none. */
    bool registerWidget(QWidget *widget);
    bool registerWidget(QWidget *widget, int row, int column);
    /** A span of -1 reaches to the end. */
    bool registerWidget(QWidget *widget, int row, int column, int rowSpan, int columnSpan);

    AppMissionControlWidth panelWidth() const;
    void setPanelWidth(AppMissionControlWidth width);

    /** Enabled by default. */
    bool closeButtonEnabled() const;
    void enableCloseButton(bool enabled);

    /** @p path is a file or resource. One that can not be read leaves no gap. */
    void setApplicationIcon(const QString &path, bool visible);
    void setApplicationIconVisible(bool visible);
    /** The lamp; off by default. */
    void setIndicator(bool on);

    /** Whether the panel is open, or on its way to it. */
    bool isExpanded() const;
    /** The panel's own texts in the language of the moment. */
    void updateText();

public Q_SLOTS:
    void expand();
    void contract();
    void setApplicationName(const QString &name);
    void setApplicationPort(const QString &port);
    void setApplicationInfo(const QString &info);
    /** There is no progress with a @p total of 0 or less. */
    void setApplicationProgress(long complete, long total);
    /** An AppPassFail; other values are no verdict. */
    void setApplicationPassFail(int state);
    /** The verdict on all runs, an AppPassFail. */
    void setApplicationSummary(int state);
    void setApplicationStatus(const QString &status);
    /** The framework's own panel covers the lowest @p height pixels; this one moves up. */
    void fwMissionControlOpening(int height);
    /** It goes: this one comes back down. */
    void fwMissionControlClosing(int height);

Q_SIGNALS:
    void requestCloseApplication();
    /** At the end of a slide or pull; at once with a duration of 0. */
    void expanded();
    void contracted();
    void requestFwMissionControl();

protected:
    QRect openGeometry(const QRect &area) const override;
    QPoint gripPosition() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
