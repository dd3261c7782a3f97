#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <unordered_map>

#include "QvexRemoteFileModel.h"
#include "QvexRemoteFileSystemAbstract.h"
#include "RemoteDisplay.h"
#include "RemoteHelperThread.h"
#include "RemoteLister.h"
#include "RemoteMerge.h"

/** The model's tree, and the listings that change it. */
struct QvexRemoteFileModel::Private : public RemoteRows
{
    /**
     * A directory's listing, from the request until its rows are in. There is one at a time for a
     * directory; one that is wanted meanwhile follows it.
     */
    struct Listing
    {
        quint64 id = 0;
        QString path;
        std::shared_ptr<RemoteMerge> merge; ///< once the controller has answered
        bool threaded = false;
        bool again = false;
    };

    Private(QvexRemoteFileModel *model, FcpAppCORBA *controllerProxy);
    ~Private() override;

    static RemoteNode *nodeOf(const QModelIndex &index);
    QModelIndex indexOf(const RemoteNode *node, int column = 0) const;
    bool isLoading(const RemoteNode *node) const { return listings.count(node) != 0; }
    /** Whether it is a directory that the controller can be asked about. */
    bool canList(const RemoteNode *node) const;
    /** Whether a view that shows its entries is to have it listed. */
    bool wantsListing(const RemoteNode *node) const;
    RemoteNode *makeKnown(const QString &path);

    void list(RemoteNode *node);
    /** Lists it if it is listed already, and if there is a link. */
    void refresh(const QString &path);
    void refilter();
    /** Its entries' paths have changed, or its rows but not by its listing: begins anew. */
    void restart(RemoteNode *node);

    bool canRename(const RemoteNode *node, const QString &newName) const;
    bool rename(RemoteNode *node, const QString &newName);
    /** Its row gets the name that it has got on the instrument. */
    void giveName(RemoteNode *node, const QString &newName);
    void followRename(const QString &oldPath, const QString &newPath);
    long startTask(RemoteHelperThread::Kind kind, const QVector<QString> &sources,
                   const QString &destination = {});
    void taskReported(const QString &source, bool final);
    void expectEntries(const QString &path);

    void insertRows(RemoteNode *directory, qint32 row, RemoteNodes::iterator first,
                    qint32 count) override;
    void removeRows(RemoteNode *directory, qint32 row, qint32 count) override;
    void reorderRows(RemoteNode *directory, const std::vector<qint32> &order) override;
    void rowsChanged(RemoteNode *directory, qint32 first, qint32 last) override;
    void relayout(RemoteNode *directory);

    QString displayText(const RemoteNode *node, int column) const;
    QIcon icon(const RemoteNode *node) const;

    QvexRemoteFileModel *const q;
    FcpAppCORBA *const controller;
    QvexRemoteFileSystemAbstract tree;
    QString rootPath;
    QDir::Filters filter = QDir::AllEntries | QDir::AllDirs | QDir::NoDotAndDotDot;
    QStringList nameFilters;
    QStringList fileTypes;
    bool asynchronous = false;
    bool taskRuns = false;
    QString taskDestination; ///< clean; empty without one
    QPersistentModelIndex renamed; ///< what is being given another name

private:
    RemoteLister::Request request(quint64 id, RemoteNode *node, const QString &path) const;
    void listNow(RemoteNode *node);
    void listOnThread(RemoteNode *node);
    void deliver();
    RemoteNode *directoryOf(quint64 id) const;
    void drop(RemoteNode *node);
    void dropBelow(RemoteNode *directory, qint32 row, qint32 count);
    void mergeSlice();
    bool mergeStep(RemoteNode *node, quint64 id, qint32 batch);
    void finish(RemoteNode *node);
    void fail(RemoteNode *node);
    void end(RemoteNode *node, void (QvexRemoteFileModel::*outcome)(const QString &));
    void readHost();

    QString host;
    std::unordered_map<const RemoteNode *, Listing> listings;
    quint64 lastListing = 0;
    QTimer slices;
    qint32 batch;
    mutable RemoteDisplay::Icons icons;

public:
    std::unique_ptr<RemoteHelperThread> helper;

private:
    std::unique_ptr<RemoteLister> lister;
};
