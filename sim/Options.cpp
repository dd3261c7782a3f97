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

constexpr int LargestPort = 65535;

QString oneLine(const QString &text)
{
    return text.simplified();
}

bool readNumber(const QString &text, int least, int most, const QString &name, int &number,
                QString &error)
{
    bool isNumber = false;
    number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most) {
        error = u"--%1: expected a number from %2 to %3, found \"%4\""_s.arg(name)
                    .arg(least)
                    .arg(most)
                    .arg(oneLine(text));
        return false;
    }
    return true;
}

/// Takes an option's value, which must not be empty, into @p text when it is given.
bool readText(const QCommandLineParser &parser, const QCommandLineOption &option, QString &text,
              QString &error)
{
    if (!parser.isSet(option)) {
        return true;
    }
    text = parser.value(option);
    if (text.isEmpty()) {
        error = u"--%1: expected a value, found an empty one"_s.arg(option.names().constLast());
    }
    return !text.isEmpty();
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

/** The options, and how their values become Options. */
class CommandLine
{
public:
    CommandLine();
    Options read(const QStringList &arguments);

private:
    bool readInformation(Options &options) const;
    bool readAddress(Options &options) const;
    bool readPlaces(Options &options) const;
    bool readBehaviour(Options &options) const;

    QCommandLineParser m_parser;
    const QCommandLineOption m_help {{u"h"_s, u"help"_s}, u"Print this text."_s};
    const QCommandLineOption m_version {{u"v"_s, u"version"_s}, u"Print the version."_s};
    const QCommandLineOption m_host {
        u"host"_s, u"Listen on this address (default 127.0.0.1; 0.0.0.0: on all)."_s, u"address"_s};
    const QCommandLineOption m_port {u"port"_s, u"Listen on this port (default 5650; 0: any)."_s,
                                     u"number"_s};
    const QCommandLineOption m_publish {
        u"publish"_s,
        u"Send clients to this address, at which they reach this program through a relay or an "
        "address translation (default: the address that they have used)."_s,
        u"host:port"_s};
    const QCommandLineOption m_root {
        u"root"_s,
        u"Keep the storage roots Internal and Remote in this directory, which is made when it is "
        "missing (default: a new one under the temporary directory, removed at the end)."_s,
        u"directory"_s};
    const QCommandLineOption m_instrument {
        u"instrument"_s, u"Simulate the instrument that this JSON file describes."_s, u"file"_s};
    const QCommandLineOption m_latency {
        u"latency"_s, u"Answer every call this many milliseconds later."_s, u"ms"_s};
    const QCommandLineOption m_fault {
        u"fault"_s, u"Misbehave by this rule, see below; may be given several times."_s, u"rule"_s};
    const QCommandLineOption m_sync {
        u"sync"_s, u"Answer the close of an upload only when it has reached the disk."_s};
    const QCommandLineOption m_log {
        u"log"_s, u"Append a line to this file for each call carried out; costs time."_s,
        u"file"_s};
};

CommandLine::CommandLine()
{
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    m_parser.setApplicationDescription(QString::fromUtf8(Description));
    m_parser.addOptions({m_help, m_version, m_host, m_port, m_publish, m_root, m_instrument,
                         m_latency, m_fault, m_sync, m_log});
}

Options CommandLine::read(const QStringList &arguments)
{
    Options options;
    if (!m_parser.parse(takeOrbWords(arguments, options.orbWords))) {
        options.error = oneLine(m_parser.errorText());
    } else if (!readInformation(options)) {
        readAddress(options) && readPlaces(options) && readBehaviour(options);
    }
    return options;
}

/// @return whether there is nothing more to do than to say something.
bool CommandLine::readInformation(Options &options) const
{
    if (m_parser.isSet(m_help)) {
        options.answer = m_parser.helpText() + u'\n' + QString::fromUtf8(Faults::help())
            + QString::fromUtf8(Notes);
    } else if (m_parser.isSet(m_version)) {
        options.answer = u"fcp-sim %1\n"_s.arg(QCoreApplication::applicationVersion());
    } else if (!m_parser.positionalArguments().isEmpty()) {
        options.error = u"unexpected argument \"%1\""_s.arg(
            oneLine(m_parser.positionalArguments().constFirst()));
    }
    return !options.answer.isEmpty() || !options.error.isEmpty();
}

bool CommandLine::readAddress(Options &options) const
{
    int port = options.port;
    if (m_parser.isSet(m_port)
        && !readNumber(m_parser.value(m_port), 0, LargestPort, u"port"_s, port, options.error)) {
        return false;
    }
    options.port = static_cast<unsigned short>(port);
    if (!readText(m_parser, m_host, options.host, options.error)) {
        return false;
    }
    options.publish = m_parser.value(m_publish);
    static const QRegularExpression address(u"^[^:]+:[0-9]{1,5}$"_s);
    const int published = options.publish.section(u':', 1).toInt();
    if (m_parser.isSet(m_publish)
        && (!address.match(options.publish).hasMatch() || published < 1
            || published > LargestPort)) {
        options.error = u"--publish: expected HOST:PORT with a port from 1 to %1, found \"%2\""_s
                            .arg(LargestPort)
                            .arg(oneLine(options.publish));
    }
    return options.error.isEmpty();
}

bool CommandLine::readPlaces(Options &options) const
{
    return readText(m_parser, m_root, options.root, options.error)
        && readText(m_parser, m_instrument, options.instrument, options.error)
        && readText(m_parser, m_log, options.log, options.error);
}

bool CommandLine::readBehaviour(Options &options) const
{
    constexpr int longest = 24 * 60 * 60 * 1000;
    int latency = 0;
    if (m_parser.isSet(m_latency)
        && !readNumber(m_parser.value(m_latency), 0, longest, u"latency"_s, latency,
                       options.error)) {
        return false;
    }
    options.latency = std::chrono::milliseconds(latency);
    options.faults = m_parser.values(m_fault);
    options.sync = m_parser.isSet(m_sync);
    return true;
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    return CommandLine().read(arguments);
}
