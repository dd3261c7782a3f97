#include "HelpBrowser.h"

#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScrollBar>

#include <utility>

#include "FingerScroll.h"

using namespace Qt::StringLiterals;

namespace {

/// A help page or picture that is larger is none.
constexpr qint64 LargestFile = 8LL * 1024 * 1024;

/// @return The name of the file or resource; empty when @p url leads elsewhere.
QString localName(const QUrl &url)
{
    if (url.scheme() == "qrc"_L1 && url.host().isEmpty()) {
        return u':' + url.path();
    }
    return url.isLocalFile() && url.host().isEmpty() ? url.toLocalFile() : QString();
}

/// Not a directory, a device or a pipe, which might never end.
bool canBeRead(const QString &name)
{
    const QFileInfo file(name);
    return file.isFile() && file.isReadable() && file.size() <= LargestFile;
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent)
    : QTextBrowser(parent)
    , m_linkColor(QGuiApplication::palette().color(QPalette::Link))
{
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    new FingerScroll(this);
}

/// A page has its links coloured while it is read.
void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    const QColor color = QGuiApplication::palette().color(QPalette::Link);
    if (event->type() == QEvent::PaletteChange && std::exchange(m_linkColor, color) != color
        && !source().isEmpty()) {
        const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
        reload();
        horizontalScrollBar()->setValue(place.x());
        verticalScrollBar()->setValue(place.y());
    }
}

void HelpBrowser::open(const QString &address)
{
    if (address.isEmpty() || address.startsWith(":/"_L1)) {
        setSource(QUrl(u"qrc"_s + (address.isEmpty() ? u":/"_s : address)));
        return;
    }
    const QString directory = QCoreApplication::applicationDirPath();
    setSource(QUrl::fromUserInput(address, directory, QUrl::AssumeLocalFile));
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    const bool isPage =
        type == QTextDocument::HtmlResource || type == QTextDocument::MarkdownResource;
    const QUrl url = source().resolved(name);
    const QString file = localName(url);
    if (!file.isEmpty() && canBeRead(file)) {
        QVariant contents = QTextBrowser::loadResource(type, url);
        if (!isPage || !contents.toByteArray().trimmed().isEmpty()) {
            return contents;
        }
    }
    if (!isPage) {
        return {};
    }
    const QString reason = file.isEmpty() ? tr("Only pages on this instrument can be shown here.")
                                          : tr("The help page is missing, or can not be read.");
    const QString page = type == QTextDocument::MarkdownResource
        ? u"## %1\n\n%2\n\n`%3`\n"_s
        : u"<h2>%1</h2><p>%2</p><p><code>%3</code></p>"_s;
    return page.arg(tr("This page can not be shown"), reason,
                    url.toString(QUrl::FullyEncoded).toHtmlEscaped());
}
