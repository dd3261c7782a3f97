#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

struct StoredProperty;

/**
 * The file that properties are kept in, and those beside it: what PropertiesManager says of the
 * file is done here, but for what is in it (PropertiesXml).
 *
 * Two objects of the same file must not be used at the same time.
 */
class PropertiesFile
{
public:
    enum class State {
        Whole,
        Absent,
        Unreadable, ///< whatever it holds
        Damaged, ///< it is no properties file
    };

    /**
     * @param lastWhole what the caller keeps from one object to the next: contents that were found
     *     to be whole, which need not be parsed to be known again.
     */
    PropertiesFile(const QString &path, QByteArray &lastWhole);

    /** Appends what is in the file, if it is whole. */
    State read(QVector<long> &ids, QVector<QString> &values);
    /**
     * Replaces the file, and keeps the one before: as ".bak" when it is whole, else moved aside.
     * @return whether everything has arrived on the medium.
     */
    bool write(const QVector<StoredProperty> &properties);
    /** Renames the file to ".corrupt-" and the time; replaces nothing. */
    bool moveAside();

    /** What was wrong and what was done about it, in words; empty when nothing was. */
    QString report() const { return m_report; }

private:
    State readBytes(QByteArray &bytes); ///< Whole when they could be read
    State parse(const QByteArray &bytes, QVector<long> &ids, QVector<QString> &values);
    bool replace(const QString &path, const QByteArray &bytes,
                 const std::function<bool()> &beforeReplacing);
    bool keepPrevious();
    bool keepAsBackup();
    bool copyTo(const QString &backup);
    bool flushDirectory();
    bool fail(const QString &path, const QString &reason);

    const QString m_path;
    QByteArray &m_lastWhole;
    QString m_report;
};
