#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>

class Invocation;

/// A command of the program: what its usage says, what it accepts and what it does.
struct Command
{
    static constexpr int Any = -1;

    QString name = {};
    QString operands = {}; ///< as the usage shows them
    QString summary = {};
    QList<QCommandLineOption> options = {};
    int fewest = 0; ///< operands
    int most = 0; ///< operands; Any when there is no limit
    bool operandsEndOptions = false; ///< what follows the first operand is passed on as it is
    int (*run)(const Invocation &) = nullptr; ///< returns the exit code; throws Failure
};

QList<Command> instrumentCommands();
QList<Command> testCommands();
QList<Command> fileCommands();
QList<Command> transferCommands();
QList<Command> treeCommands();
QList<Command> syncCommands();
QList<Command> watchCommands();
