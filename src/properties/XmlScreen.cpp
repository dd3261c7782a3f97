#include "XmlScreen.h"

using namespace Qt::StringLiterals;

namespace {

/// Where the text goes on behind @p mark; at its end when the mark does not come.
qsizetype behind(QByteArrayView xml, QByteArrayView mark, qsizetype from)
{
    const qsizetype found = xml.indexOf(mark, from);
    return found < 0 ? xml.size() : found + mark.size();
}

/// Where the text goes on behind a tag; a value in quotes may hold what otherwise ends one.
qsizetype behindTag(QByteArrayView xml, qsizetype from, int &attributes)
{
    char quote = 0;
    for (qsizetype i = from; i < xml.size(); ++i) {
        const char c = xml[i];
        if (quote != 0) {
            quote = c == quote ? char(0) : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
            ++attributes;
        } else if (c == '>') {
            return i + 1;
        }
    }
    return xml.size();
}

} // namespace

QString objectionToXml(QByteArrayView xml, int maxAttributes)
{
    qsizetype at = xml.indexOf('<');
    while (at >= 0) {
        const QByteArrayView markup = xml.sliced(at);
        if (markup.startsWith("<!--")) {
            at = behind(xml, "-->", at + 4);
        } else if (markup.startsWith("<![CDATA[")) {
            at = behind(xml, "]]>", at + 9);
        } else if (markup.startsWith("<?")) {
            at = behind(xml, "?>", at + 2);
        } else if (markup.startsWith("<!")) {
            return u"it has a document type"_s;
        } else {
            int attributes = 0;
            at = behindTag(xml, at + 1, attributes);
            if (attributes > maxAttributes) {
                return u"an element has %1 attributes, more than %2"_s.arg(attributes)
                    .arg(maxAttributes);
            }
        }
        at = xml.indexOf('<', at);
    }
    return {};
}
