#include "FwLogModel.h"

#include "ColorTheme.h"

using namespace Qt::StringLiterals;

namespace {

QColor colorOf(QtMsgType level)
{
    const ColorTheme &theme = ColorTheme::current();
    switch (level) {
    case QtDebugMsg:
        return theme.color("disabledText"_L1);
    case QtInfoMsg:
        return theme.color("text"_L1);
    case QtWarningMsg:
        return theme.color("warning"_L1);
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return theme.color("fail"_L1);
}

} // namespace

FwLogModel::FwLogModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int FwLogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

QVariant FwLogModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const FwLogLine &line = m_shown.at(index.row());
    if (role == Qt::DisplayRole) {
        // The day is the same for most lines, and the place is short.
        return line.toText().mid("2026-11-21T"_L1.size());
    }
    return role == Qt::ForegroundRole ? QVariant(colorOf(line.level)) : QVariant();
}

void FwLogModel::append(const QVector<FwLogLine> &lines, qsizetype capacity)
{
    if (lines.isEmpty()) {
        return;
    }
    m_newest = lines.constLast().number;
    m_held += lines;
    const QVector<FwLogLine> added = passing(lines);
    if (!added.isEmpty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + int(added.size()) - 1);
        m_shown += added;
        endInsertRows();
    }
    dropOldest(m_held.size() - capacity);
}

void FwLogModel::dropOldest(qsizetype count)
{
    if (count <= 0) {
        return;
    }
    m_held.remove(0, count);
    const quint64 oldest = m_held.isEmpty() ? m_newest + 1 : m_held.constFirst().number;
    const auto first = std::find_if(m_shown.begin(), m_shown.end(),
                                    [oldest](const FwLogLine &l) { return l.number >= oldest; });
    const qsizetype gone = first - m_shown.begin();
    if (gone > 0) {
        beginRemoveRows({}, 0, int(gone) - 1);
        m_shown.remove(0, gone);
        endRemoveRows();
    }
}

void FwLogModel::clear()
{
    beginResetModel();
    m_held.clear();
    m_shown.clear();
    endResetModel();
}

void FwLogModel::setFilter(QtMsgType level, const QString &category)
{
    if (level == m_level && category == m_category) {
        return;
    }
    beginResetModel();
    m_level = level;
    m_category = category;
    m_shown = passing(m_held);
    endResetModel();
}

void FwLogModel::updateColors()
{
    if (!m_shown.isEmpty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::ForegroundRole});
    }
}

bool FwLogModel::passes(const FwLogLine &line) const
{
    return FwLogLine::severity(line.level) >= FwLogLine::severity(m_level)
        && (m_category.isEmpty() || line.category == m_category
            || line.category.startsWith(m_category + u'.'));
}

QVector<FwLogLine> FwLogModel::passing(const QVector<FwLogLine> &lines) const
{
    QVector<FwLogLine> result;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(result),
                 [this](const FwLogLine &line) { return passes(line); });
    return result;
}
