#include "FilePaths.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include "FileNames.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestName = 255; // bytes, of the file systems on both sides

QString say(const char *text)
{
    return QCoreApplication::translate("FilePaths", text);
}

} // namespace

namespace FilePaths {

QString join(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString parentOf(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash > 0 ? path.first(slash) : u"/"_s;
}

QString nameOf(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QString shownNameOf(const QString &path)
{
    return FileNames::shown(nameOf(path));
}

QString buttonText(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

QStringList ancestors(const QString &path)
{
    QStringList result {u"/"_s};
    for (const QString &name : path.split(u'/', Qt::SkipEmptyParts)) {
        result.append(join(result.constLast(), name));
    }
    return result;
}

QString nameFault(const QString &name)
{
    if (name.trimmed().isEmpty()) {
        return say(QT_TRANSLATE_NOOP("FilePaths", "A name is needed."));
    }
    if (name == "."_L1 || name == ".."_L1) {
        return say(QT_TRANSLATE_NOOP("FilePaths", "\"%1\" can't be a name.")).arg(name);
    }
    for (const QChar c : name) {
        if (c == u'/') {
            return say(QT_TRANSLATE_NOOP("FilePaths", "A name can't have a \"/\"."));
        }
        if (c.category() == QChar::Other_Control) {
            return say(QT_TRANSLATE_NOOP("FilePaths", "A name can't have the character %1."))
                .arg(u"U+%1"_s.arg(uint(c.unicode()), 4, 16, QChar(u'0')));
        }
    }
    return name.toUtf8().size() > longestName
        ? say(QT_TRANSLATE_NOOP("FilePaths", "This name is too long."))
        : QString();
}

QString withSuffix(const QString &name, const QString &suffix)
{
    const bool hasOne = name.lastIndexOf(u'.') > 0;
    return suffix.isEmpty() || hasOne ? name : name + u'.' + suffix;
}

QStringList patternsOf(const QString &nameFilter)
{
    static const QRegularExpression inBrackets(u"\\(([^()]*)\\)\\s*$"_s);
    const auto match = inBrackets.match(nameFilter);
    const QString patterns = match.hasMatch() ? match.captured(1) : nameFilter;
    return patterns.split(u' ', Qt::SkipEmptyParts);
}

} // namespace FilePaths
