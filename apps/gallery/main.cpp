// gallery: the widgets of the library, each live on a page of its own.

#include "GalleryWindow.h"
#include "Grabber.h"
#include "Options.h"
#include "Platform.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

enum ExitCode { Done = 0, Failed = 1, Misused = 2 };

int complain(const QString &message, ExitCode code)
{
    std::fprintf(stderr, "gallery: %s\n", qPrintable(message));
    return code;
}

int pageIndex(const PageList &pages, const QString &name)
{
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [&name](const auto &page) { return page->name() == name; });
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

int list(const PageList &pages)
{
    for (const auto &page : pages) {
        std::printf("%s\n", qPrintable(page->name()));
    }
    return Done;
}

QString grab(GalleryWindow &window, const Options &options, int onlyPage)
{
    QDir directory(options.grabDirectory);
    if (!directory.mkpath(u"."_s)) {
        return u"can't make the directory %1"_s.arg(directory.path());
    }
    QApplication::setCursorFlashTime(0);
    const QString suffix =
        qFuzzyCompare(options.scale, 1.0) ? QString() : u"@%1x"_s.arg(options.scale);
    Grabber grabber(window, directory, suffix);
    QString error;
    for (int i = 0; i < static_cast<int>(window.pages().size()) && error.isEmpty(); ++i) {
        if (onlyPage < 0 || onlyPage == i) {
            error = grabber.grabPage(i);
        }
    }
    return error;
}

int run(int &argc, char *argv[], const Options &options, const PageList &pages, int startPage)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"gallery"_s);
    QApplication::setApplicationDisplayName(u"Widget gallery"_s);
    Platform::setLook();
    GalleryWindow window(pages);
    window.show();
    if (!options.grabDirectory.isEmpty()) {
        const QString error = grab(window, options, startPage);
        return error.isEmpty() ? Done : complain(error, Failed);
    }
    window.showPage(qMax(startPage, 0));
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        words += QString::fromLocal8Bit(argv[i]);
    }
    const Options options = Options::parse(words);
    if (!options.error.isEmpty()) {
        return complain(options.error, Misused);
    }
    if (options.help) {
        std::fputs(qPrintable(Options::helpText()), stdout);
        return Done;
    }
    const PageList pages = makePages();
    if (options.list) {
        return list(pages);
    }
    const int startPage = options.page.isEmpty() ? -1 : pageIndex(pages, options.page);
    if (!options.page.isEmpty() && startPage < 0) {
        return complain(u"there is no page '%1'; --list names them"_s.arg(options.page), Misused);
    }
    const Platform platform(options);
    if (!platform.error().isEmpty()) {
        return complain(platform.error(), Failed);
    }
    return run(argc, argv, options, pages, startPage);
}
