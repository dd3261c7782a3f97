#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <string>
#include <vector>

/** What the command line asks for. */
struct Options
{
    QString instrument = QStringLiteral(":/instruments/field-tester.json");
    QString root; ///< empty: a directory of its own, for this run only
    QString host = QStringLiteral("127.0.0.1");
    unsigned short port = 5650;
    /// "HOST:PORT", the address that clients are sent to; empty: the one they have used.
    QString publish;
    std::chrono::milliseconds latency {0};
    QStringList faults;
    QString log;
    bool sync = false;
    std::vector<std::string> orbWords; ///< "-ORB..." and their values

    /** A text to print instead of running: the answer to --help or --version. */
    QString answer;
    /** What is wrong with the command line, in one line; empty when it is right. */
    QString error;
};

Options readOptions(const QStringList &arguments);
