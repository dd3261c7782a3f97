#include "Options.h"

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

void declare(QCommandLineParser &parser)
{
    parser.addOptions({
        {{u"h"_s, u"help"_s}, {}},
        {u"fcp"_s, {}, u"HOST:PORT"_s},
        {u"no-link"_s, {}},
        {u"properties"_s, {}, u"DIR"_s},
        {u"results"_s, {}, u"DIR"_s},
        {u"size"_s, {}, u"WIDTHxHEIGHT"_s},
        {u"tour"_s, {}, u"DIR"_s},
        {u"appId"_s, {}, u"ID"_s},
        {u"appColor"_s, {}, u"R,G,B"_s},
    });
}

void readAddress(const QString &text, Options &options)
{
    const qsizetype colon = text.lastIndexOf(u':');
    bool isNumber = false;
    const int port = text.mid(colon + 1).toInt(&isNumber);
    if (colon < 1 || !isNumber || port < 1 || port > 65535) {
        options.error = u"--fcp wants HOST:PORT, not '%1'"_s.arg(text);
        return;
    }
    options.host = text.left(colon);
    options.port = port;
}

void readSize(const QString &text, Options &options)
{
    bool isWidth = false;
    bool isHeight = false;
    const QSize size(text.section(u'x', 0, 0).toInt(&isWidth),
                     text.section(u'x', 1).toInt(&isHeight));
    // The least is the frame's.
    if (!isWidth || !isHeight || size.width() < 800 || size.height() < 480 || size.width() > 7680
        || size.height() > 4320) {
        options.error = u"--size wants 800x480 to 7680x4320, not '%1'"_s.arg(text);
        return;
    }
    options.size = size;
}

QString folder(const QCommandLineParser &parser, const QString &option, const QString &standard)
{
    if (parser.isSet(option)) {
        return QDir(parser.value(option)).absolutePath();
    }
    // Not AppDataLocation, which asks for an application object.
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir(data).filePath(u"level-meter/"_s + standard);
}

QString complaint(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty()) {
        return u"unexpected word '%1'; see --help"_s.arg(parser.positionalArguments().constFirst());
    }
    for (const QString &option : {u"properties"_s, u"results"_s, u"tour"_s}) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            return u"--%1 wants a directory"_s.arg(option);
        }
    }
    return {};
}

} // namespace

Options Options::parse(const QStringList &words)
{
    Options options;
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(QStringList {u"level-meter"_s} + words)) {
        options.error = u"%1; see --help"_s.arg(parser.errorText().remove(u'.'));
        return options;
    }
    options.help = parser.isSet(u"help"_s);
    options.useLink = !parser.isSet(u"no-link"_s);
    options.error = complaint(parser);
    if (options.error.isEmpty() && parser.isSet(u"fcp"_s)) {
        readAddress(parser.value(u"fcp"_s), options);
    }
    if (options.error.isEmpty() && parser.isSet(u"size"_s)) {
        readSize(parser.value(u"size"_s), options);
    }
    options.settingsFolder = folder(parser, u"properties"_s, u"settings"_s);
    options.resultsFolder = folder(parser, u"results"_s, u"results"_s);
    if (parser.isSet(u"tour"_s)) {
        options.tourFolder = QDir(parser.value(u"tour"_s)).absolutePath();
    }
    return options;
}

QString Options::helpText()
{
    return uR"(usage: level-meter [--fcp HOST:PORT | --no-link] [--properties DIR] [--results DIR]
                   [--size WIDTHxHEIGHT] [--appId=ID] [--appColor=R,G,B]
       level-meter --tour DIR [--size WIDTHxHEIGHT]

Measures the level and the bit errors of a received signal: an example of an instrument
application. The values are made up; the test that they belong to is launched at the controller.

  --fcp HOST:PORT    the controller; 127.0.0.1:5650 by default, where fcp-sim listens
  --no-link          do without a controller
  --properties DIR   keep the settings and the log in this folder
  --results DIR      save results in this folder
  --size WIDTHxHEIGHT  of the window; 1280x800 by default, 800x480 at least
  --appId=ID         the application's id at the framework
  --appColor=R,G,B   the ground of the windows, three numbers from 0 to 255
  --tour DIR         show everything by itself, check it, and write pictures into DIR; starts the
                     fcp-sim that is beside this program, and needs no display
  -h, --help         print this text
)"_s;
}
