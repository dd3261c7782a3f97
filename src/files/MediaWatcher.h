#pragma once

#include <QObject>
#include <QStringList>

/**
 * Knows which removable media are mounted, by looking at the table of mounts once a second. The
 * media themselves are not touched: one that hangs would hang the asking.
 */
class MediaWatcher : public QObject
{
    Q_OBJECT

public:
    MediaWatcher(const QStringList &roots, const QString &mountTable, QObject *parent);

    /** The folders that they are mounted at, in the order of their names. */
    QStringList media() const { return m_media; }

Q_SIGNALS:
    void mediaChanged();

private:
    QStringList read() const;
    void look();

    const QStringList m_roots;
    const QString m_mountTable;
    QStringList m_media;
};
