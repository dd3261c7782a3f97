#pragma once

#include <QString>

#include <memory>

#include "SidePanel.h"

/** The application's help, over the whole frame. Slides in from the trailing edge. */
class VEX_EXPORT AppHelpWidget : public SidePanel
{
    Q_OBJECT

public:
    explicit AppHelpWidget(QWidget *parent);
    ~AppHelpWidget() override;

    /** The panel's own texts in the language of the moment. */
    void updateText();

public Q_SLOTS:
    /**
     * A resource (":/..."), a file (relative to the program's directory) or a URL of one. In place
     * of a page that can not be shown there is one that says so.
     */
    void showHelpWindow(const QString &url);
    void hideHelpWindow();

Q_SIGNALS:
    /** Once for each change, at the end of the slide. */
    void helpPanelShown(bool shown);

protected:
    bool event(QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
