// The text of a properties file, as it comes from a medium, and the texts that are put into one.

#include <cstdint>
#include <cstdlib>

#include "properties/PropertiesXml.h"

namespace {

/// Whether the properties come back from the file that they were written to.
bool survive(const QVector<long> &ids, const QVector<QString> &values)
{
    QVector<StoredProperty> properties;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        properties.append({ids.at(i), values.at(i), values.at(i)});
    }
    const QByteArray xml = PropertiesXml::write(properties);
    QVector<long> readIds;
    QVector<QString> readValues;
    return xml.size() > PropertiesXml::MaxSize
        || (PropertiesXml::read(xml, readIds, readValues).isEmpty() && readIds == ids
            && readValues == values);
}

} // namespace

extern "C" __attribute__((visibility("default"))) int LLVMFuzzerTestOneInput(const uint8_t *data,
                                                                             size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QVector<long> ids;
    QVector<QString> values;
    if (PropertiesXml::read(bytes, ids, values).isEmpty() && !survive(ids, values)) {
        std::abort();
    }
    const QString text(reinterpret_cast<const QChar *>(bytes.constData()), bytes.size() / 2);
    if (!survive({1}, {text})) {
        std::abort();
    }
    return 0;
}
