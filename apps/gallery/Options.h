#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Options
{
    QString page; ///< name of a page; empty: the first one, or all that are grabbed
    QString grabDirectory; ///< where pictures go; empty: the gallery is shown
    double scale = 1.0; ///< device pixels for each pixel of the layout
    bool help = false;
    bool list = false;
    QString error; ///< what is wrong with the command line, for a person; empty when nothing is

    /// Needs no application object. @p words are those after the program's name.
    static Options parse(const QStringList &words);
    static QString helpText();
};
