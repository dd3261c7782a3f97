#include "Options.h"

#include <QCommandLineParser>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

void declare(QCommandLineParser &parser)
{
    parser.addOptions({
        {{u"h"_s, u"help"_s}, {}},
        {u"list"_s, {}},
        {u"page"_s, {}, u"NAME"_s},
        {u"grab"_s, {}, u"DIR"_s},
        {u"scale"_s, {}, u"FACTOR"_s},
    });
}

QString complaint(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty()) {
        return u"unexpected word '%1'; see --help"_s.arg(parser.positionalArguments().constFirst());
    }
    if (parser.isSet(u"grab"_s) && parser.value(u"grab"_s).isEmpty()) {
        return u"--grab wants a directory"_s;
    }
    return {};
}

void readScale(const QString &text, Options &options)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(scale) && scale >= 0.5 && scale <= 4.0) {
        options.scale = scale;
    } else {
        options.error = u"--scale wants a factor from 0.5 to 4, not '%1'"_s.arg(text);
    }
}

} // namespace

Options Options::parse(const QStringList &words)
{
    Options options;
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(QStringList {u"gallery"_s} + words)) {
        options.error = u"%1; see --help"_s.arg(parser.errorText().remove(u'.'));
        return options;
    }
    options.help = parser.isSet(u"help"_s);
    options.list = parser.isSet(u"list"_s);
    options.page = parser.value(u"page"_s);
    options.grabDirectory = parser.value(u"grab"_s);
    options.error = complaint(parser);
    if (options.error.isEmpty() && parser.isSet(u"scale"_s)) {
        readScale(parser.value(u"scale"_s), options);
    }
    return options;
}

QString Options::helpText()
{
    return uR"(usage: gallery [--page NAME] [--scale FACTOR] [--grab DIR]
       gallery --list | --help

Shows the widgets of the library, live, each on a page of its own.

  --page NAME      start with this page; with --grab, only this one
  --scale FACTOR   device pixels for each pixel of the layout, 0.5 to 4
  --grab DIR       write a picture of every page and its dialogs into DIR instead of showing
                   them, 1280 by 800 times the scale; needs no display
  --list           print the names of the pages
  -h, --help       print this text
)"_s;
}
