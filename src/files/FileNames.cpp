#include "FileNames.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("FileTransfer", text);
}

} // namespace

QString FileNames::complaintAbout(const QString &name)
{
    if (name.isEmpty() || name == "."_L1 || name == ".."_L1 || name.contains(u'/')
        || name.contains(QChar::Null)) {
        return tr("this is not the name of a file");
    }
    if (!name.isValidUtf16()) {
        return tr("its name holds bytes that are no text");
    }
    if (name.toUtf8().size() > LongestName) {
        return tr("the name is longer than %1 bytes").arg(LongestName);
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

QString FileNames::joined(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}
