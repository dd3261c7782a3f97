#include "Table.h"

#include "Text.h"

using namespace Qt::StringLiterals;

Table::Table(const QList<Column> &columns)
    : m_columns(columns)
    , m_widths(columns.size(), 0)
{
    QStringList titles;
    for (const Column &column : columns) {
        titles += column.title;
    }
    add(titles);
}

void Table::add(const QStringList &row)
{
    Q_ASSERT(row.size() == m_columns.size());
    for (qsizetype i = 0; i < row.size(); ++i) {
        m_widths[i] = std::max(m_widths[i], displayWidth(row[i]));
    }
    m_rows += row;
}

QString Table::text() const
{
    QString text;
    for (const QStringList &row : m_rows) {
        text += line(row) + u'\n';
    }
    return text;
}

QString Table::line(const QStringList &row) const
{
    QString line;
    for (qsizetype i = 0; i < row.size(); ++i) {
        const QString padding(m_widths[i] - displayWidth(row[i]), u' ');
        const bool right = m_columns[i].align == Align::Right;
        line += right ? padding + row[i] : row[i];
        if (i + 1 < row.size()) {
            line += (right ? QString() : padding) + u"  "_s;
        }
    }
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line;
}
