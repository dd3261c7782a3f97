#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Rows under aligned columns.
class Table
{
public:
    enum class Align { Left, Right };

    struct Column
    {
        QString title;
        Align align = Align::Left;
    };

    explicit Table(const QList<Column> &columns);

    /// One text a column, as it shall stand there.
    void add(const QStringList &row);
    /// The titles and the rows, a line each; widths count terminal cells.
    QString text() const;

private:
    QString line(const QStringList &row) const;

    QList<Column> m_columns;
    QList<int> m_widths;
    QList<QStringList> m_rows;
};
