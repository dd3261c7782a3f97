#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QVector>

#include "FwLogLine.h"

/** The lines that an FwLogView shows, of those that it holds. */
class FwLogModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit FwLogModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /** Appends @p lines and lets go of the oldest above @p capacity. */
    void append(const QVector<FwLogLine> &lines, qsizetype capacity);
    void clear();
    /** The number of the newest line that was ever appended. */
    quint64 newest() const { return m_newest; }

    QtMsgType level() const { return m_level; }
    QString category() const { return m_category; }
    void setFilter(QtMsgType level, const QString &category);
    /** After a change of the theme. */
    void updateColors();

private:
    bool passes(const FwLogLine &line) const;
    QVector<FwLogLine> passing(const QVector<FwLogLine> &lines) const;
    void dropOldest(qsizetype count);

    QVector<FwLogLine> m_held;
    QVector<FwLogLine> m_shown;
    quint64 m_newest = 0;
    QtMsgType m_level = QtDebugMsg;
    QString m_category;
};
