#pragma once

#include "QvexDialog.h"

class HelpBrowser;

/**
 * Shows help pages: local files and resources in HTML or, with the suffix ".md", in Markdown.
 *
 * Nothing is loaded from the network. Where a page should be that is missing, or is not local, the
 * dialog says so.
 */
class VEX_EXPORT QvextHelpDialog : public QvexDialog
{
    Q_OBJECT

public:
    QvextHelpDialog();
    explicit QvextHelpDialog(QString url);
    ~QvextHelpDialog() override;

    /**
     * Goes to the page at @p url: a path, where a relative one begins at the application's
     * directory and one with ":/" in front is a resource's, or a URL. It becomes the home page.
     */
    void setHelpUrl(const QString &url) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
