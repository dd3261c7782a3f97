#pragma once

#include <QString>

/**
 * The folders that are listed, in a directory of memory that a simulated controller serves too:
 * what is at "/Internal/NAME" there is path(NAME) here.
 */
class Folders
{
public:
    /** @p scale makes all of them smaller, for a quick look. */
    Folders(const QString &directory, double scale);

    QString serverRoot() const { return m_directory + QStringLiteral("/there"); }
    QString path(const QString &name) const;

    int manyCount() const { return m_manyCount; }
    int hugeCount() const { return m_hugeCount; }
    int headCount() const { return m_headCount; }
    /** Of the files in heads(), those that "Meter" has written. */
    int matchingCount() const { return (m_headCount + 1) / 2; }

    static QString many() { return QStringLiteral("many"); }
    static QString huge() { return QStringLiteral("huge"); }
    /** Saved files of two applications, in turn. */
    static QString heads() { return QStringLiteral("heads"); }
    /** The names in many() and huge(), which sort as they are numbered. */
    static QString name(int number);

    /** Gives one file of many() another size, and the next time another one. */
    void changeOne();

private:
    void makeNames(const QString &folder, int count) const;
    void makeHeads() const;

    const QString m_directory;
    const int m_manyCount;
    const int m_hugeCount;
    const int m_headCount;
    int m_changes = 0;
};
