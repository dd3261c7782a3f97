#pragma once

#include <QModelIndex>
#include <QString>

#include <memory>

class QvexFileModel;
class Session;

/// The file model of one side, used without a view: what is asked for is there when a call returns.
class FileSide
{
public:
    static std::unique_ptr<FileSide> instrument(const Session &session);
    static std::unique_ptr<FileSide> computer();
    ~FileSide();

    bool isInstrument() const { return m_session != nullptr; }
    QvexFileModel &model() { return *m_model; }

    /// The folder @p path with its entries known; throws Failure when it can't be listed.
    QModelIndex open(const QString &path);
    /// Sees to it that the entries of @p folder are known; throws Failure when they can't be.
    void list(const QModelIndex &folder);
    /// Whether there is a folder at @p path.
    bool isFolder(const QString &path) const;
    /// Makes @p path and what is missing above it; throws Failure.
    void makeFolder(const QString &path);

private:
    FileSide(std::unique_ptr<QvexFileModel> model, const Session *session);

    QModelIndex awaited(const QString &path);

    std::unique_ptr<QvexFileModel> m_model;
    const Session *m_session;
};
