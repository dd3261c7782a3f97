#include "PropertiesXml.h"

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "XmlScreen.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";
constexpr int MaxAttributes = 64;
constexpr int MaxDepth = 64;

/// Whether XML 1.0 can hold the character at @p index (its production 2, "Char").
bool isXmlCharacter(QStringView text, qsizetype index)
{
    const QChar c = text.at(index);
    if (c.isHighSurrogate()) {
        return index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
    }
    if (c.isLowSurrogate()) {
        return index > 0 && text.at(index - 1).isHighSurrogate();
    }
    return c >= u' ' ? c < u'\xFFFE' : c == u'\t' || c == u'\n' || c == u'\r';
}

bool isXmlText(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isXmlCharacter(text, i)) {
            return false;
        }
    }
    return true;
}

QString escaped(QStringView text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c != u'\\' && isXmlCharacter(text, i)) {
            result += c;
        } else {
            result += u"\\u%1"_s.arg(ushort(c.unicode()), 4, 16, QLatin1Char('0'));
        }
    }
    return result;
}

/// A backslash that no "uXXXX" follows stands for itself.
QString unescaped(QStringView text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        bool isEscape = false;
        if (text.sliced(i).startsWith("\\u"_L1) && i + 6 <= text.size()) {
            const ushort code = text.sliced(i + 2, 4).toUShort(&isEscape, 16);
            if (isEscape) {
                result += QChar(code);
                i += 5;
            }
        }
        if (!isEscape) {
            result += text.at(i);
        }
    }
    return result;
}

QString replaced(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isXmlCharacter(text, i)) {
            text[i] = QChar::ReplacementCharacter;
        }
    }
    return text;
}

void writeProperty(QXmlStreamWriter &xml, const StoredProperty &property)
{
    xml.writeEmptyElement(u"vex"_s);
    xml.writeAttribute(u"key"_s, QString::number(property.id));
    xml.writeAttribute(u"tag"_s, replaced(property.tag));
    if (isXmlText(property.value)) {
        xml.writeAttribute(u"val"_s, property.value);
    } else {
        xml.writeAttribute(u"val"_s, escaped(property.value));
        xml.writeAttribute(u"escaped"_s, u"true"_s);
    }
}

void readProperty(const QXmlStreamAttributes &attributes, QVector<long> &ids,
                  QVector<QString> &values)
{
    bool isNumber = false;
    const long id = attributes.value("key"_L1).toLong(&isNumber);
    if (!isNumber || !attributes.hasAttribute("val"_L1)) {
        return;
    }
    const QStringView value = attributes.value("val"_L1);
    const bool isEscaped = attributes.value("escaped"_L1) == "true"_L1;
    ids.append(id);
    values.append(isEscaped ? unescaped(value) : value.toString());
}

QString readElements(QXmlStreamReader &xml, QVector<long> &ids, QVector<QString> &values)
{
    if (!xml.readNextStartElement() || xml.qualifiedName() != "properties"_L1) {
        return xml.hasError() ? xml.errorString() : u"its root is not \"properties\""_s;
    }
    int depth = 1;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement) {
            --depth;
        } else if (token == QXmlStreamReader::StartElement) {
            if (++depth > MaxDepth) {
                return u"elements are nested deeper than %1"_s.arg(MaxDepth);
            }
            if (xml.qualifiedName() == "vex"_L1) {
                readProperty(xml.attributes(), ids, values);
            }
        }
    }
    return xml.errorString();
}

} // namespace

QByteArray PropertiesXml::write(const QVector<StoredProperty> &properties)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    buffer.write(ByteOrderMark);
    QXmlStreamWriter xml(&buffer);
    xml.writeStartElement(u"properties"_s);
    xml.setAutoFormatting(true); // only now: no line break before the root
    xml.setAutoFormattingIndent(1);
    for (const StoredProperty &property : properties) {
        writeProperty(xml, property);
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return buffer.data();
}

QString PropertiesXml::read(const QByteArray &bytes, QVector<long> &ids, QVector<QString> &values)
{
    if (bytes.size() > MaxSize) {
        return u"it is larger than %1 bytes"_s.arg(MaxSize);
    }
    if (!bytes.isValidUtf8()) {
        return u"it is not UTF-8"_s;
    }
    QString objection = objectionToXml(bytes, MaxAttributes);
    if (!objection.isEmpty()) {
        return objection;
    }
    // From a text, not from bytes, for which it would heed another encoding that they declare.
    QXmlStreamReader xml(QString::fromUtf8(bytes));
    xml.setNamespaceProcessing(false);
    const QString error = readElements(xml, ids, values);
    return error.isEmpty() ? QString() : u"line %1: %2"_s.arg(xml.lineNumber()).arg(error);
}
