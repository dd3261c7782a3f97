#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What the command line asks for. The frame reads its own words of it, --appId and --appColor.
struct Options
{
    QString host = QStringLiteral("127.0.0.1");
    int port = 5650; ///< where fcp-sim listens by default
    bool useLink = true;
    QString settingsFolder; ///< where the settings are kept
    QString resultsFolder; ///< where results are saved first
    QString tourFolder; ///< where the tour's pictures go; empty: no tour
    QSize size {1280, 800}; ///< of the window, and of the tour's screen
    bool help = false;
    QString error; ///< what is wrong with the command line; empty when nothing is

    /// Needs no application object. @p words are those after the program's name.
    static Options parse(const QStringList &words);
    static QString helpText();
};
