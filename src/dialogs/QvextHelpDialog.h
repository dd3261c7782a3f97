#pragma once

#include "QvexDialog.h"

/**
 * Shows help pages: local files and resources in HTML or, with the suffix ".md", in Markdown.
 *
 * Nothing is loaded from the network. Where a page should be that is missing or not local, the
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
     * Goes to the page at @p url, which becomes the home page: a URL or a path, where ":/" begins a
     * resource's and a relative one starts at the application's directory.
     */
    void setHelpUrl(const QString &url) override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
