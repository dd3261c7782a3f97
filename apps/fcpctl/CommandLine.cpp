#include "CommandLine.h"

#include "Output.h"
#include "Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString DefaultHost = u"localhost"_s;
constexpr int DefaultPort = 5650;

QList<QCommandLineOption> commonOptions()
{
    return {
        {u"host"_s, u"The controller's host ($FCP_HOST, else localhost)."_s, u"HOST"_s},
        {u"port"_s, u"The controller's port ($FCP_PORT, else %1)."_s.arg(DefaultPort), u"PORT"_s},
        {u"timeout"_s, u"Give up a call after that many seconds (180)."_s, u"SECONDS"_s},
        {u"json"_s, u"Print results as JSON."_s},
        {{u"h"_s, u"help"_s}, u"Show this help."_s},
    };
}

QList<Command> allCommands()
{
    return instrumentCommands() + testCommands() + fileCommands() + treeCommands()
        + transferCommands() + syncCommands() + watchCommands();
}

/// What Qt says, as the end of a sentence of ours.
QString parserError(const QCommandLineParser &parser)
{
    QString text = printable(parser.errorText());
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text.left(1).toLower() + text.mid(1);
}

QString withUsage(const QString &usage, const QString &helpText)
{
    return u"Usage: fcpctl %1\n%2"_s.arg(usage, helpText.section(u'\n', 1));
}

QString programHelp(const QCommandLineParser &parser, const QList<Command> &commands)
{
    QString text = withUsage(u"[options] COMMAND [operands]"_s, parser.helpText());
    text += u"\nCommands ('fcpctl COMMAND --help' tells more):\n"_s;
    for (const Command &command : commands) {
        text += u"  %1 %2\n"_s.arg(command.name, -10).arg(command.summary);
    }
    text += u"\nExit codes: 0 done, 1 refused or failed, 2 usage, 3 no link,\n"
            u"128 + signal when a transfer was interrupted (130 for Ctrl-C).\n"_s;
    return text;
}

int runCommand(const Command &command, const QStringList &words)
{
    try {
        const Invocation invocation(command, words);
        if (invocation.wantsHelp()) {
            Output::write(invocation.helpText());
            return static_cast<int>(Exit::Done);
        }
        return command.run(invocation);
    } catch (const Failure &failure) {
        throw Failure {failure.exit, command.name + u": "_s + failure.message};
    }
}

} // namespace

Invocation::Invocation(const Command &command, const QStringList &words)
    : m_command(command)
{
    m_parser.setApplicationDescription(command.summary);
    m_parser.addOptions(command.options);
    m_parser.addOptions(commonOptions());
    if (command.operandsEndOptions) {
        m_parser.setOptionsAfterPositionalArgumentsMode(
            QCommandLineParser::ParseAsPositionalArguments);
    }
    if (!m_parser.parse(QStringList {u"fcpctl"_s} + words)) {
        usageError(parserError(m_parser));
    }
    if (!wantsHelp()) {
        checkOperands();
        address();
    }
}

bool Invocation::wantsHelp() const
{
    return m_parser.isSet(u"help"_s);
}

QString Invocation::helpText() const
{
    const QString usage = u"%1 [options] %2"_s.arg(m_command.name, m_command.operands).trimmed();
    return withUsage(usage, m_parser.helpText());
}

Address Invocation::address() const
{
    Address address;
    address.host = m_parser.isSet(u"host"_s)
        ? m_parser.value(u"host"_s)
        : fromShell(qEnvironmentVariableIsEmpty("FCP_HOST") ? toShell(DefaultHost)
                                                            : qgetenv("FCP_HOST"));
    if (address.host.isEmpty()) {
        usageError(u"--host is empty"_s);
    }
    address.port = port();
    if (m_parser.isSet(u"timeout"_s)) {
        address.timeOut = seconds(u"timeout"_s);
    }
    return address;
}

bool Invocation::json() const
{
    return m_parser.isSet(u"json"_s);
}

qint32 Invocation::id(qsizetype operand) const
{
    const QString word = operands().at(operand);
    bool isNumber = false;
    const qint32 id = word.toInt(&isNumber);
    if (!isNumber) {
        usageError(u"'%1' is no id"_s.arg(printable(word)));
    }
    return id;
}

std::chrono::milliseconds Invocation::seconds(const QString &option) const
{
    const QString word = value(option);
    bool isNumber = false;
    const double milliseconds = word.toDouble(&isNumber) * 1000;
    // The ORB takes a 32-bit count of milliseconds, and 0 as "wait for ever".
    if (!isNumber || !(milliseconds >= 1) || milliseconds > std::numeric_limits<qint32>::max()) {
        usageError(u"--%1 '%2' is no number of seconds"_s.arg(option, printable(word)));
    }
    return std::chrono::milliseconds(std::llround(milliseconds));
}

void Invocation::usageError(const QString &message) const
{
    throw Failure {Exit::Usage, message};
}

void Invocation::checkOperands() const
{
    const QStringList given = operands();
    if (given.size() < m_command.fewest) {
        usageError(u"too few operands, it takes %1"_s.arg(m_command.operands));
    }
    if (m_command.most != Command::Any && given.size() > m_command.most) {
        usageError(u"unexpected operand '%1'"_s.arg(printable(given[m_command.most])));
    }
    if (!m_command.operandsEndOptions && given.contains(QString())) {
        usageError(u"an operand is empty"_s);
    }
}

int Invocation::port() const
{
    QString word = m_parser.value(u"port"_s);
    QString origin = u"--port"_s;
    if (!m_parser.isSet(u"port"_s)) {
        if (qEnvironmentVariableIsEmpty("FCP_PORT")) {
            return DefaultPort;
        }
        word = fromShell(qgetenv("FCP_PORT"));
        origin = u"FCP_PORT"_s;
    }
    bool isNumber = false;
    const ushort number = word.toUShort(&isNumber);
    if (!isNumber || number == 0) {
        usageError(u"%1 '%2' is no port"_s.arg(origin, printable(word)));
    }
    return number;
}

int runCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Calls a measurement instrument's controller."_s);
    parser.addOptions(commonOptions());
    parser.addVersionOption();
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    if (!parser.parse(QStringList {u"fcpctl"_s} + arguments)) {
        throw Failure {Exit::Usage, parserError(parser)};
    }
    const QList<Command> commands = allCommands();
    if (parser.isSet(u"version"_s)) {
        Output::line(u"fcpctl "_s + QCoreApplication::applicationVersion());
        return static_cast<int>(Exit::Done);
    }
    if (parser.isSet(u"help"_s)) {
        Output::write(programHelp(parser, commands));
        return static_cast<int>(Exit::Done);
    }
    const QStringList tail = parser.positionalArguments();
    if (tail.isEmpty()) {
        throw Failure {Exit::Usage, u"no command; 'fcpctl --help' lists them"_s};
    }
    const auto command =
        std::find_if(commands.begin(), commands.end(),
                     [&tail](const Command &candidate) { return candidate.name == tail.first(); });
    if (command == commands.end()) {
        throw Failure {
            Exit::Usage,
            u"unknown command '%1'; 'fcpctl --help' lists them"_s.arg(printable(tail.first()))};
    }
    const QStringList before = arguments.first(arguments.size() - tail.size());
    return runCommand(*command, before + tail.sliced(1));
}
