#pragma once

#include "Command.h"
#include "Session.h"

#include <QCommandLineParser>
#include <QStringList>

/// A command line that was understood.
class Invocation
{
public:
    /// Throws Failure with Exit::Usage. @p words are those before and after the command's name.
    Invocation(const Command &command, const QStringList &words);

    bool wantsHelp() const;
    QString helpText() const;

    QString name() const { return m_command.name; }
    Address address() const;
    bool json() const;
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    QString value(const QString &option) const { return m_parser.value(option); }
    QStringList operands() const { return m_parser.positionalArguments(); }

    /// The operand as one of the controller's 32-bit ids; throws Failure with Exit::Usage.
    qint32 id(qsizetype operand) const;
    /// The option as a time in seconds; throws Failure with Exit::Usage.
    std::chrono::milliseconds seconds(const QString &option) const;

    [[noreturn]] void usageError(const QString &message) const;

private:
    void checkOperands() const;
    int port() const;

    const Command &m_command;
    QCommandLineParser m_parser;
};

/// Understands @p arguments (without the program's name) and does what they say.
int runCommandLine(const QStringList &arguments);
