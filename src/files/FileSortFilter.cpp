#include "FileSortFilter.h"

#include <QDateTime>

#include <algorithm>

namespace {

int sign(qint64 difference)
{
    return difference < 0 ? -1 : int(difference > 0);
}

int compareTimes(const QVariant &left, const QVariant &right)
{
    const QDateTime a = left.toDateTime();
    const QDateTime b = right.toDateTime();
    if (a.isValid() && b.isValid()) {
        return sign(a.toMSecsSinceEpoch() - b.toMSecsSinceEpoch());
    }
    return QString::compare(left.toString(), right.toString());
}

/// The digits that begin at @p at, without leading zeros; moves @p at behind them.
QStringView number(QStringView text, qsizetype &at)
{
    while (at < text.size() && text[at] == u'0') {
        ++at;
    }
    const qsizetype first = at;
    while (at < text.size() && text[at].isDigit()) {
        ++at;
    }
    return text.sliced(first, at - first);
}

int compareNumbers(QStringView left, qsizetype &i, QStringView right, qsizetype &j)
{
    const QStringView a = number(left, i);
    const QStringView b = number(right, j);
    return a.size() != b.size() ? sign(a.size() - b.size()) : a.compare(b);
}

} // namespace

FileSortFilter::FileSortFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(true);
}

QvexFileModel *FileSortFilter::files() const
{
    return qobject_cast<QvexFileModel *>(sourceModel());
}

void FileSortFilter::setFolder(const QModelIndex &folder)
{
    if (m_folder != folder) {
        m_folder = folder;
        invalidateFilter();
    }
}

void FileSortFilter::setSearch(const QString &text)
{
    if (m_search != text) {
        m_search = text;
        invalidateFilter();
    }
}

void FileSortFilter::setPatterns(const QStringList &patterns)
{
    m_patterns.clear();
    for (const QString &pattern : patterns) {
        m_patterns.append(
            QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern),
                               QRegularExpression::CaseInsensitiveOption));
    }
    invalidateFilter();
}

bool FileSortFilter::fitsType(const QString &name) const
{
    return m_patterns.isEmpty()
        || std::any_of(m_patterns.cbegin(), m_patterns.cend(),
                       [&name](const auto &pattern) { return pattern.match(name).hasMatch(); });
}

bool FileSortFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (parent != m_folder) {
        return true;
    }
    const QModelIndex index = sourceModel()->index(row, QvexFileModel::NameColumn, parent);
    const QString name = index.data(QvexFileModel::FileNameRole).toString();
    if (!m_search.isEmpty() && !name.contains(m_search, Qt::CaseInsensitive)) {
        return false;
    }
    return index.data(QvexFileModel::IsDirRole).toBool() || fitsType(name);
}

bool FileSortFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const bool leftIsDir = left.data(QvexFileModel::IsDirRole).toBool();
    if (leftIsDir != right.data(QvexFileModel::IsDirRole).toBool()) {
        return leftIsDir == (sortOrder() == Qt::AscendingOrder); // on top in either order
    }
    const int order = compare(left, right);
    if (order != 0 || left.column() == QvexFileModel::NameColumn) {
        return order < 0;
    }
    const int names = compareNames(left.data(QvexFileModel::FileNameRole).toString(),
                                   right.data(QvexFileModel::FileNameRole).toString());
    return names < 0;
}

int FileSortFilter::compare(const QModelIndex &left, const QModelIndex &right) const
{
    const auto of = [&](int role) { return std::pair(left.data(role), right.data(role)); };
    switch (left.column()) {
    case QvexFileModel::SizeColumn: {
        const auto [a, b] = of(QvexFileModel::FileSizeRole);
        return sign(a.toLongLong() - b.toLongLong());
    }
    case QvexFileModel::DateColumn: {
        const auto [a, b] = of(QvexFileModel::FileTimeRole);
        return compareTimes(a, b);
    }
    case QvexFileModel::TypeColumn: {
        const auto [a, b] = of(Qt::DisplayRole);
        return a.toString().compare(b.toString(), Qt::CaseInsensitive);
    }
    default: {
        const auto [a, b] = of(QvexFileModel::FileNameRole);
        return compareNames(a.toString(), b.toString());
    }
    }
}

int FileSortFilter::compareNames(const QString &left, const QString &right)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < left.size() && j < right.size()) {
        int order = 0;
        if (left[i].isDigit() && right[j].isDigit()) {
            order = compareNumbers(left, i, right, j);
        } else {
            order = sign(left[i++].toCaseFolded().unicode() - right[j++].toCaseFolded().unicode());
        }
        if (order != 0) {
            return order;
        }
    }
    const int rest = sign((left.size() - i) - (right.size() - j));
    return rest != 0 ? rest : left.compare(right);
}
