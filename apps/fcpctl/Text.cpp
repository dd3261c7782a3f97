#include "Text.h"

#include <QList>
#include <QStringDecoder>

#include <array>
#include <cwchar>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t ByteEscape = 0xDC00;

bool isEscapedByte(QChar character)
{
    return character >= QChar(ByteEscape + 0x80) && character <= QChar(ByteEscape + 0xFF);
}

/// The length of the well-formed UTF-8 sequence at the start of @p bytes; 0 when there is none.
qsizetype sequenceLength(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(4, bytes.size()); ++length) {
        if (bytes.first(length).isValidUtf8()) {
            return length;
        }
    }
    return 0;
}

/// Calls @p plain with each run of ordinary text and @p byte with each escaped byte between them.
template<typename Plain, typename Byte>
void split(const QString &text, Plain plain, Byte byte)
{
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
        } else if (isEscapedByte(text[i])) {
            plain(QStringView(text).sliced(start, i - start));
            byte(static_cast<char>(text[i].unicode() - ByteEscape));
            start = i + 1;
        }
    }
    plain(QStringView(text).sliced(start));
}

QString escaped(char32_t character)
{
    switch (character) {
    case '\\':
        return u"\\\\"_s;
    case '\n':
        return u"\\n"_s;
    case '\t':
        return u"\\t"_s;
    case '\r':
        return u"\\r"_s;
    default:
        break;
    }
    if (character < 0x100) {
        return u"\\x%1"_s.arg(static_cast<uint>(character), 2, 16, '0'_L1);
    }
    return u"\\u{%1}"_s.arg(static_cast<uint>(character), 0, 16);
}

bool needsEscape(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return character == '\\';
    }
}

} // namespace

QString fromShell(const QByteArray &bytes)
{
    if (bytes.isValidUtf8()) {
        return QString::fromUtf8(bytes);
    }
    QString text;
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype length = sequenceLength(QByteArrayView(bytes).sliced(i));
        if (length == 0) {
            text += QChar(static_cast<char16_t>(ByteEscape + static_cast<uchar>(bytes[i])));
            ++i;
        } else {
            text += QString::fromUtf8(bytes.sliced(i, length));
            i += length;
        }
    }
    return text;
}

QByteArray toShell(const QString &text)
{
    QByteArray bytes;
    split(
        text, [&bytes](QStringView plain) { bytes += plain.toUtf8(); },
        [&bytes](char byte) { bytes += byte; });
    return bytes;
}

bool isUtf8Name(const QString &name)
{
    return name.isValidUtf16();
}

QString printable(const QString &text)
{
    QString shown;
    const auto plain = [&shown](QStringView part) {
        for (const uint character : part.toUcs4()) {
            shown += needsEscape(character)
                ? escaped(character)
                : QString::fromUcs4(reinterpret_cast<const char32_t *>(&character), 1);
        }
    };
    split(text, plain, [&shown](char byte) { shown += escaped(static_cast<uchar>(byte)); });
    return shown;
}

int displayWidth(const QString &text)
{
    int width = 0;
    for (const uint character : text.toUcs4()) {
        width += std::max(0, ::wcwidth(static_cast<wchar_t>(character)));
    }
    return width;
}

QString humanSize(qint64 count)
{
    static constexpr std::array Units {"KiB", "MiB", "GiB", "TiB", "PiB", "EiB"};
    if (count < 1024) {
        return u"%1 B"_s.arg(count);
    }
    double value = static_cast<double>(count) / 1024;
    std::size_t unit = 0;
    while (value >= 1023.95 && unit + 1 < Units.size()) {
        value /= 1024;
        ++unit;
    }
    return u"%1 %2"_s.arg(value, 0, 'f', 1).arg(QLatin1String(Units[unit]));
}
