#pragma once

#include <corba/FcpRecords.h>

#include <QHash>
#include <QString>

#include <optional>

class Session;

/// The path without slashes at its end; "/" stays.
QString withoutTrailingSlash(const QString &path);
/// The directory that holds @p path; "/" for one without a directory.
QString remoteParent(const QString &path);
/// The last component of @p path.
QString remoteName(const QString &path);
QString joinPath(const QString &directory, const QString &name);

/**
 * The instrument's files as its listings show them.
 *
 * A listing is fetched once and kept: a command that asks for a thousand files of one directory
 * makes one call. Call forget() when the directory may have changed.
 */
class RemoteTree
{
public:
    explicit RemoteTree(const Session &session);

    /// What a listing of @p directory shows, hidden files included; nothing when it can't be had.
    std::optional<QVector<FileSystemItem>> list(const QString &directory,
                                                const QVector<QString> &patterns = {}) const;

    std::optional<FileSystemItem> find(const QString &path);
    bool isDirectory(const QString &path);

    /**
     * Where something called @p name goes when the user says @p destination: into it when that is
     * a directory, else to that very path. Throws Failure when it ends in a slash, or
     * @p mustBeDirectory, and is no directory.
     */
    QString target(const QString &destination, const QString &name, bool mustBeDirectory = false);

    void forget() { m_directories.clear(); }

private:
    using Entries = QHash<QString, FileSystemItem>;
    const Entries *entries(const QString &directory);

    const Session &m_session;
    QHash<QString, std::optional<Entries>> m_directories;
};
