#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/** A property as it is written to the file. */
struct StoredProperty
{
    long id;
    QString tag;
    QString value;
};

/** The text of a properties file, as PropertiesManager describes it. */
namespace PropertiesXml {

/** What is longer, in bytes, is not read. 10,000 ordinary properties need a twentieth of it. */
inline constexpr qsizetype MaxSize = qsizetype(16) << 20;

QByteArray write(const QVector<StoredProperty> &properties);

/**
 * Appends the ids in the text, in its order, and their values. Elements without a proper "key" or
 * without "val" are left out.
 * @return what is wrong with the text, in words; empty after success.
 */
[[nodiscard]] QString read(const QByteArray &xml, QVector<long> &ids, QVector<QString> &values);

} // namespace PropertiesXml
