#include "FileNames.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t PictureOfNul = 0x2400; // U+2400 to U+241F show the control characters
constexpr char16_t PictureOfDelete = 0x2421;

/// Separates lines, turns the direction of text around, or is half a character.
bool misleads(QChar c)
{
    const char16_t u = c.unicode();
    return u == 0x2028 || u == 0x2029 || (u >= 0x80 && u < 0xA0) || (u >= 0x200E && u <= 0x200F)
        || u == 0x061C || u == 0xFEFF || (u >= 0x202A && u <= 0x202E)
        || (u >= 0x2066 && u <= 0x2069);
}

bool isOrdinary(QChar c)
{
    return c >= u' ' && c.unicode() != 0x7F && !misleads(c) && !c.isSurrogate();
}

QString sign(QChar c)
{
    const char16_t u = c.unicode();
    if (u < u' ') {
        return QChar(PictureOfNul + u);
    }
    if (u == 0x7F) {
        return QChar(PictureOfDelete);
    }
    const int byteOrCode = c.isLowSurrogate() ? u & 0xFF : u; // see FcpAppCORBA
    return QChar(QChar::ReplacementCharacter) + QString::number(byteOrCode, 16).toUpper();
}

QString say(const char *text)
{
    return QCoreApplication::translate("FileNames", text);
}

} // namespace

QString FileNames::complaintAbout(const QString &name)
{
    if (name.isEmpty() || name == "."_L1 || name == ".."_L1 || name.contains(u'/')
        || name.contains(QChar::Null)) {
        return say(QT_TRANSLATE_NOOP("FileNames", "this is not the name of a file"));
    }
    if (!name.isValidUtf16()) {
        return say(QT_TRANSLATE_NOOP("FileNames", "its name holds bytes that are no text"));
    }
    if (name.toUtf8().size() > LongestName) {
        return say(QT_TRANSLATE_NOOP("FileNames", "the name is longer than %1 bytes"))
            .arg(LongestName);
    }
    return {};
}

QString FileNames::shortened(const QString &name, qsizetype bytes)
{
    QString text = name;
    while (text.toUtf8().size() > bytes) {
        const bool endsWithPair = text.size() > 1 && text.back().isLowSurrogate()
            && text[text.size() - 2].isHighSurrogate();
        text.chop(endsWithPair ? 2 : 1);
    }
    return text;
}

QString FileNames::numbered(const QString &name, int number)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    // What begins with its only dot is hidden, not all suffix.
    const QString base = dot > 0 ? name.first(dot) : name;
    const QString end = u" (%1)"_s.arg(number) + (dot > 0 ? name.sliced(dot) : QString());
    return shortened(base, LongestName - end.toUtf8().size()) + end;
}

QString FileNames::shown(const QString &name)
{
    if (std::all_of(name.cbegin(), name.cend(), isOrdinary)) {
        return name;
    }
    QString shown;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name[i].isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            shown += QStringView(name).sliced(i++, 2);
        } else {
            shown += isOrdinary(name[i]) ? QString(name[i]) : sign(name[i]);
        }
    }
    return shown;
}
