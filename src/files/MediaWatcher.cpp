#include "MediaWatcher.h"

#include <QFile>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr qsizetype mountPointField = 4; // see proc(5)

bool isOctal(const QByteArray &text)
{
    return text.size() == 3
        && std::all_of(text.cbegin(), text.cend(), [](char c) { return c >= '0' && c <= '7'; });
}

/// A medium is mounted at ROOT/NAME or ROOT/USER/NAME; what is deeper is something else.
bool isMediumOf(const QString &root, const QString &mount)
{
    return mount.startsWith(root + u'/') && mount.sliced(root.size()).count(u'/') <= 2;
}

/// Blanks and the like are written as \040 in the table.
QString unescaped(const QByteArray &field)
{
    QByteArray result;
    for (qsizetype i = 0; i < field.size(); ++i) {
        const QByteArray code = field.mid(i + 1, 3);
        if (field[i] == '\\' && isOctal(code)) {
            result += static_cast<char>(code.toInt(nullptr, 8));
            i += 3;
        } else {
            result += field[i];
        }
    }
    return QFile::decodeName(result);
}

} // namespace

MediaWatcher::MediaWatcher(const QStringList &roots, const QString &mountTable, QObject *parent)
    : QObject(parent)
    , m_roots(roots)
    , m_mountTable(mountTable)
    , m_media(read())
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &MediaWatcher::look);
    timer->start(1s);
}

QStringList MediaWatcher::read() const
{
    QStringList found;
    QFile table(m_mountTable);
    if (!table.open(QIODevice::ReadOnly)) {
        return found;
    }
    const QList<QByteArray> lines = table.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QString mount = unescaped(line.split(' ').value(mountPointField));
        const bool isMedium =
            std::any_of(m_roots.cbegin(), m_roots.cend(),
                        [&mount](const QString &root) { return isMediumOf(root, mount); });
        if (isMedium && !found.contains(mount)) {
            found.append(mount);
        }
    }
    found.sort();
    return found;
}

void MediaWatcher::look()
{
    QStringList media = read();
    if (media != m_media) {
        m_media = std::move(media);
        Q_EMIT mediaChanged();
    }
}
