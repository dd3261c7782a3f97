#pragma once

#include <QColor>
#include <QTextBrowser>

/**
 * A browser for pages on this machine: files and resources, HTML and Markdown.
 *
 * Anything else is not loaded, be it a page, a picture or a style sheet. In place of a page that is
 * missing or refused there is one that says so. When the application's colour for links changes,
 * the page is read again and stays where it was scrolled to.
 */
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /** Shows a resource (":/..."), a file (relative to the program's directory) or a URL of one. */
    void open(const QString &address);

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    QColor m_linkColor; ///< of the page as it was read
};
