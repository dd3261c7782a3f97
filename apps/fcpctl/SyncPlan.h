#pragma once

#include <QModelIndex>
#include <QString>
#include <QStringList>
#include <QVector>

class FileSide;

/**
 * What has to be carried so that a folder has what another one has.
 *
 * A file differs when the target has none of its name, one of another size, or an older one. Where
 * a side tells no time, the size alone counts. Nothing is ever deleted.
 */
struct SyncPlan
{
    enum class Why { Missing, Size, Older };

    struct Item
    {
        QString source; ///< a file, or a whole folder
        Why why = Why::Missing;
        bool isFolder = false;
        qint64 size = 0; ///< of a file
    };

    /// What goes into one folder.
    struct Batch
    {
        QString targetFolder;
        QVector<Item> items;
    };

    struct Obstacle
    {
        QString path;
        QString reason;
    };

    QVector<Batch> batches;
    QVector<Obstacle> obstacles; ///< what can't be carried
    int same = 0; ///< files that need not be

    /// @p target need not be there yet. Throws Failure when the source can't be listed.
    static SyncPlan make(FileSide &sourceSide, const QString &source, FileSide &targetSide,
                         const QString &target);
};
