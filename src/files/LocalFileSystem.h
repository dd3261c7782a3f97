#pragma once

#include <QFileSystemModel>

#include <limits>
#include <unordered_map>
#include <vector>

/**
 * QFileSystemModel below a proxy that sorts by itself: such a proxy asks for the index, the name
 * and the time of each row many times over, which are remembered here, and an order of the rows
 * that nobody sees need not be made.
 */
class LocalFileSystem : public QFileSystemModel
{
    Q_OBJECT

public:
    LocalFileSystem();

    /**
     * Whether rows stay as they come, instead of being sorted by name as a person would (the
     * default). When it ends, all rows are sorted.
     */
    void setUnsorted(bool isUnsorted);

    /** As fileName(). */
    QString nameOf(const QModelIndex &index) const;
    /** When a file was last changed, in ms since 1970. */
    qint64 timeOf(const QModelIndex &index) const;

    using QFileSystemModel::index;
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    void fetchMore(const QModelIndex &parent) override;

Q_SIGNALS:
    /** The entries of a folder are about to be listed, which ends in directoryLoaded(). */
    void fetching(const QString &path);

private:
    static constexpr qint64 UnknownTime = std::numeric_limits<qint64>::min();

    struct Entry
    {
        void *id = nullptr; ///< its indexes' internal pointer
        QString name; ///< empty: not asked for yet
        qint64 time = UnknownTime;
    };
    using Entries = std::vector<Entry>;

    Entries &entriesOf(const void *folder) const;
    Entry *entryAt(const QModelIndex &index) const;
    void forget();
    void forgetTexts(const QModelIndex &first, const QModelIndex &last);

    mutable std::unordered_map<const void *, Entries> m_folders; ///< by their internal pointers
    mutable Entries *m_entries = nullptr; ///< of the folder that was asked for last
    mutable const void *m_folder = nullptr; ///< that folder
    QDir::Filters m_sortedFilter; ///< by which the rows are listed since the last sorting
    bool m_isUnsorted = false;
    bool m_isSorting = false;
};
