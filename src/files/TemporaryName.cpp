#include "TemporaryName.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QMutex>
#include <QRegularExpression>
#include <QSet>
#include <QSysInfo>

#include <signal.h>

#include <cerrno>

#include "FileNames.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Leaves room for what surrounds it, and for a suffix that a controller may append itself.
constexpr qsizetype LongestStem = 180;

struct NamesInUse
{
    QMutex mutex;
    QSet<int> numbers;
    int last = 0;

    int take()
    {
        const QMutexLocker locker(&mutex);
        numbers.insert(++last);
        return last;
    }
    void giveBack(int number)
    {
        const QMutexLocker locker(&mutex);
        numbers.remove(number);
    }
    bool has(int number)
    {
        const QMutexLocker locker(&mutex);
        return numbers.contains(number);
    }
};

NamesInUse &namesInUse()
{
    static NamesInUse names;
    return names;
}

QString shortHash(const QByteArray &bytes)
{
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.first(4).toHex());
}

const QString &hostMark()
{
    static const QString mark =
        shortHash(QSysInfo::machineUniqueId() + QSysInfo::machineHostName().toUtf8());
    return mark;
}

bool hasEnded(pid_t process)
{
    return process <= 0 || (::kill(process, 0) != 0 && errno == ESRCH);
}

} // namespace

TemporaryName::TemporaryName(const QString &name)
    : m_stem(stemOf(name))
    , m_number(namesInUse().take())
{
}

TemporaryName::~TemporaryName()
{
    namesInUse().giveBack(m_number);
}

QString TemporaryName::part() const
{
    return withSuffix(u"vexpart"_s);
}

QString TemporaryName::backup() const
{
    return withSuffix(u"vexold"_s);
}

QString TemporaryName::withSuffix(const QString &suffix) const
{
    return u".%1.%2-%3-%4.%5"_s.arg(m_stem, hostMark(),
                                    QString::number(QCoreApplication::applicationPid()),
                                    QString::number(m_number), suffix);
}

QString TemporaryName::stemOf(const QString &name)
{
    if (name.toUtf8().size() <= LongestStem) {
        return name;
    }
    const QString hash = shortHash(name.toUtf8());
    return FileNames::shortened(name, LongestStem - hash.size() - 1) + u'~' + hash;
}

std::optional<TemporaryName::Leftover> TemporaryName::leftover(const QString &entryName)
{
    static const QRegularExpression pattern(
        uR"(^\.(.+)\.([0-9a-f]{8})-(\d+)-(\d+)\.(?:vexpart(?:\..*)?|(vexold))$)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(entryName);
    if (!match.hasMatch() || match.captured(2) != hostMark()) {
        return std::nullopt;
    }
    const auto process = static_cast<pid_t>(match.captured(3).toInt());
    const bool isOurs = process == static_cast<pid_t>(QCoreApplication::applicationPid());
    const bool isInUse = isOurs ? namesInUse().has(match.captured(4).toInt()) : !hasEnded(process);
    if (isInUse) {
        return std::nullopt;
    }
    return Leftover {match.captured(1), match.hasCaptured(5)};
}
