#include "RemoteDisplay.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// The number that @p count digits are, or -1.
int digits(const QString &text, qsizetype at, int count)
{
    int value = 0;
    for (const QChar c : QStringView(text).sliced(at, count)) {
        if (c < u'0' || c > u'9') {
            return -1;
        }
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("QvexRemoteFileModel", text);
}

} // namespace

/// Views sort by it: QDateTime's own parser would take a hundred times as long.
QVariant RemoteDisplay::time(const QString &date)
{
    if (date.size() != 19 || date[4] != u'-' || date[7] != u'-' || date[13] != u':'
        || date[16] != u':') {
        return date;
    }
    const QDate day(digits(date, 0, 4), digits(date, 5, 2), digits(date, 8, 2));
    const QTime time(digits(date, 11, 2), digits(date, 14, 2), digits(date, 17, 2));
    return day.isValid() && time.isValid() ? QVariant(QDateTime(day, time)) : QVariant(date);
}

QString RemoteDisplay::errorText(long result)
{
    static constexpr struct
    {
        long code;
        const char *text;
    } texts[] {
        {ENOENT, QT_TRANSLATE_NOOP("QvexRemoteFileModel", "It is not there any more.")},
        {EACCES, QT_TRANSLATE_NOOP("QvexRemoteFileModel", "There is no permission for it.")},
        {EPERM, QT_TRANSLATE_NOOP("QvexRemoteFileModel", "There is no permission for it.")},
        {EEXIST,
         QT_TRANSLATE_NOOP("QvexRemoteFileModel", "Something of that name is there already.")},
        {EINVAL, QT_TRANSLATE_NOOP("QvexRemoteFileModel", "A folder can't be put into itself.")},
        {ENOSPC, QT_TRANSLATE_NOOP("QvexRemoteFileModel", "The instrument's storage is full.")},
    };
    for (const auto &known : texts) {
        if (known.code == result) {
            return translated(known.text);
        }
    }
    return translated(QT_TRANSLATE_NOOP("QvexRemoteFileModel", "The instrument reported error %1."))
        .arg(result);
}

QIcon RemoteDisplay::Icons::icon(Kind kind)
{
    static constexpr std::array<QFileIconProvider::IconType, KindCount> types {
        QFileIconProvider::File, QFileIconProvider::Folder, QFileIconProvider::Computer,
        QFileIconProvider::Drive, QFileIconProvider::Network};
    if (!m_provider) {
        m_provider = std::make_unique<QFileIconProvider>();
    }
    QIcon &icon = m_icons[kind];
    if (icon.isNull()) {
        icon = m_provider->icon(types[kind]);
    }
    return icon;
}
