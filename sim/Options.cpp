#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include "Faults.h"

using namespace Qt::StringLiterals;

namespace {

const char Description[] =
    "A simulated controller (Fcp): serves the controller's interface over TCP, keeps real files\n"
    "under a directory, runs tests as processes and pushes events. Prints\n"
    "  fcp-sim: listening on port N\n"
    "on its standard output when it is ready, obeys commands on its standard input (try \"help\")\n"
    "and runs until SIGTERM or SIGINT, or the command \"quit\".";

const char Notes[] = R"(
Options that begin with -ORB go to the ORB, e.g. -ORBtraceLevel 25.

Exit codes: 0 done, 1 it can't run (the port is taken, the directory is not writable),
2 a bad option or file.
)";

bool readNumber(const QString &text, int least, int most, const QString &name, int &number,
                QString &error)
{
    bool isNumber = false;
    number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most) {
        error = u"--%1: expected a number from %2 to %3, found \"%4\""_s.arg(name)
                    .arg(least)
                    .arg(most)
                    .arg(text);
        return false;
    }
    return true;
}

QStringList takeOrbWords(QStringList words, std::vector<std::string> &orbWords)
{
    QStringList rest;
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        if (!word.startsWith("-ORB"_L1)) {
            rest.append(word);
            continue;
        }
        orbWords.push_back(word.toStdString());
        if (!words.isEmpty()) {
            orbWords.push_back(words.takeFirst().toStdString());
        }
    }
    return rest;
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Print this text."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Print the version."_s);
    const QCommandLineOption host(
        u"host"_s, u"Listen on this address (default 127.0.0.1; 0.0.0.0: on all)."_s, u"address"_s);
    const QCommandLineOption port(u"port"_s, u"Listen on this port (default 5650; 0: any)."_s,
                                  u"number"_s);
    const QCommandLineOption publish(
        u"publish"_s,
        u"Send clients to this address, at which they reach this program through a relay or an "
        "address translation (default: the address that they have used)."_s,
        u"host:port"_s);
    const QCommandLineOption root(
        u"root"_s,
        u"Keep the storage roots Internal and Remote in this directory, which is made when it is "
        "missing (default: a new one under the temporary directory, removed at the end)."_s,
        u"directory"_s);
    const QCommandLineOption instrument(
        u"instrument"_s, u"Simulate the instrument that this JSON file describes."_s, u"file"_s);
    const QCommandLineOption sync(
        u"sync"_s, u"Answer the close of an upload only when it has reached the disk."_s);
    const QCommandLineOption log(
        u"log"_s, u"Append a line to this file for each call carried out; costs time."_s,
        u"file"_s);

    const QCommandLineOption latency(u"latency"_s,
                                     u"Answer every call this many milliseconds later."_s, u"ms"_s);
    const QCommandLineOption fault(
        u"fault"_s, u"Misbehave by this rule, see below; may be given several times."_s, u"rule"_s);

    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QString::fromUtf8(Description));
    parser.addOptions(
        {help, version, host, port, publish, root, instrument, latency, fault, sync, log});

    Options options;
    const QStringList words = takeOrbWords(arguments, options.orbWords);
    if (!parser.parse(words)) {
        options.error = parser.errorText();
        return options;
    }
    if (parser.isSet(help)) {
        options.answer = parser.helpText() + u'\n' + QString::fromUtf8(Faults::help())
            + QString::fromUtf8(Notes);
        return options;
    }
    if (parser.isSet(version)) {
        options.answer = u"fcp-sim %1\n"_s.arg(QCoreApplication::applicationVersion());
        return options;
    }
    if (!parser.positionalArguments().isEmpty()) {
        options.error =
            u"unexpected argument \"%1\""_s.arg(parser.positionalArguments().constFirst());
        return options;
    }
    if (parser.isSet(host)) {
        options.host = parser.value(host);
    }
    int number = options.port;
    if (parser.isSet(port)
        && !readNumber(parser.value(port), 0, 65535, u"port"_s, number, options.error)) {
        return options;
    }
    options.port = static_cast<unsigned short>(number);
    options.publish = parser.value(publish);
    static const QRegularExpression address(u"^[^:]+:[0-9]{1,5}$"_s);
    if (parser.isSet(publish) && !address.match(options.publish).hasMatch()) {
        options.error = u"--publish %1: HOST:PORT is expected"_s.arg(options.publish);
        return options;
    }
    number = 0;
    if (parser.isSet(latency)
        && !readNumber(parser.value(latency), 0, 86400000, u"latency"_s, number, options.error)) {
        return options;
    }
    options.latency = std::chrono::milliseconds(number);
    options.faults = parser.values(fault);
    if (parser.isSet(instrument)) {
        options.instrument = parser.value(instrument);
    }
    options.root = parser.value(root);
    options.sync = parser.isSet(sync);
    options.log = parser.value(log);
    return options;
}
