#include "FileSortKey.h"

#include <QDateTime>

#include <algorithm>
#include <limits>

#include "QvexFileModel.h"

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Letters in one case; a number without leading zeros, behind a digit and its length.
QString orderOf(const QString &name)
{
    constexpr qsizetype longest = 0xFFFF;
    QString order;
    order.reserve(name.size() + 8);
    for (qsizetype i = 0; i < name.size();) {
        if (!isDigit(name[i])) {
            order += name[i++].toCaseFolded();
            continue;
        }
        while (i < name.size() && name[i] == u'0') {
            ++i;
        }
        const qsizetype first = i;
        while (i < name.size() && isDigit(name[i])) {
            ++i;
        }
        order += u'0';
        order += QChar(static_cast<char16_t>(std::min(i - first, longest)));
        order += QStringView(name).sliced(first, i - first);
    }
    return order;
}

} // namespace

FileSortKey::FileSortKey(const QModelIndex &entry, int column)
    : name(entry.data(QvexFileModel::FileNameRole).toString())
    , order(orderOf(name))
    , flags(entry.flags())
    , isDir(entry.data(QvexFileModel::IsDirRole).toBool())
{
    if (column == QvexFileModel::SizeColumn) {
        number = entry.data(QvexFileModel::FileSizeRole).toLongLong();
    } else if (column == QvexFileModel::TypeColumn) {
        text = entry.siblingAtColumn(column).data().toString().toCaseFolded();
    } else if (column == QvexFileModel::DateColumn) {
        const QVariant value = entry.data(QvexFileModel::FileTimeRole);
        const QDateTime time = value.toDateTime();
        number = time.isValid() ? time.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
        text = time.isValid() ? QString() : value.toString();
    }
}

int FileSortKey::compare(const FileSortKey &other) const
{
    if (number != other.number) {
        return number < other.number ? -1 : 1;
    }
    if (const int texts = text.compare(other.text)) {
        return texts;
    }
    const int orders = order.compare(other.order);
    return orders != 0 ? orders : name.compare(other.name);
}

bool FileSortKey::operator==(const FileSortKey &other) const
{
    return isDir == other.isDir && compare(other) == 0;
}
