#include "ProgressBar.h"

#include "Text.h"

#include <QList>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int NarrowestBar = 10;
constexpr int WidestBar = 40;
constexpr int NarrowestLabel = 8;
constexpr int WidestLabel = 32;

int terminalWidth()
{
    winsize size {};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        return size.ws_col;
    }
    return 80;
}

/// @p text cut to @p width cells, the end marked when something is missing.
QString fitted(const QString &text, int width)
{
    if (displayWidth(text) <= width) {
        return text;
    }
    QString cut;
    for (const uint character : text.toUcs4()) {
        const QString next =
            cut + QString::fromUcs4(reinterpret_cast<const char32_t *>(&character), 1);
        if (displayWidth(next) > width - 1) {
            break;
        }
        cut = next;
    }
    return width > 0 ? cut + u'\u2026' : QString();
}

QString clockTime(double seconds)
{
    const auto whole = static_cast<qint64>(std::ceil(seconds));
    const QString tail = u"%1:%2"_s.arg(whole / 60 % 60, whole < 3600 ? 1 : 2, 10, '0'_L1)
                             .arg(whole % 60, 2, 10, '0'_L1);
    return whole < 3600 ? tail : u"%1:"_s.arg(whole / 3600) + tail;
}

QString remainingTime(qint64 left, double bytesPerSecond)
{
    const double seconds = static_cast<double>(left) / bytesPerSecond;
    return bytesPerSecond > 0 && seconds < 360000 ? clockTime(seconds) : u"-:--"_s;
}

int percentage(qint64 done, qint64 total)
{
    return total == 0 ? 100
                      : static_cast<int>(100 * static_cast<double>(std::min(done, total))
                                         / static_cast<double>(total));
}

QString bar(qint64 done, qint64 total, int width)
{
    const double part = total > 0
        ? std::clamp(static_cast<double>(done) / static_cast<double>(total), 0.0, 1.0)
        : 1.0;
    const int filled = static_cast<int>(part * (width - 2));
    return u'[' + QString(filled, u'#') + QString(width - 2 - filled, u'.') + u']';
}

} // namespace

void ProgressBar::Rate::update(qint64 done, qint64 nanoseconds)
{
    constexpr double MemorySeconds = 3;
    const double seconds = static_cast<double>(nanoseconds - m_lastTime) / 1e9;
    const double keep = std::exp(-seconds / MemorySeconds);
    m_bytes = m_bytes * keep + static_cast<double>(done - m_lastDone);
    m_seconds = m_seconds * keep + seconds;
    m_lastDone = done;
    m_lastTime = nanoseconds;
}

double ProgressBar::Rate::bytesPerSecond() const
{
    return m_seconds > 0 ? m_bytes / m_seconds : 0;
}

ProgressBar::ProgressBar(bool wanted)
    : m_enabled(wanted && ::isatty(STDERR_FILENO) != 0)
{
}

void ProgressBar::start(const QString &label, qint64 total)
{
    m_label = printable(label);
    m_total = total;
    m_clock.start();
    m_rate = {};
}

void ProgressBar::update(qint64 done)
{
    if (m_enabled) {
        m_rate.update(done, m_clock.nsecsElapsed());
        const double rate = m_rate.bytesPerSecond();
        draw(done, rate, remainingTime(std::max<qint64>(0, m_total - done), rate));
    }
}

void ProgressBar::updateNowAndThen(qint64 done)
{
    constexpr int DrawingInterval = 50;
    if (m_enabled && (!m_sinceDrawn.isValid() || m_sinceDrawn.hasExpired(DrawingInterval))) {
        m_sinceDrawn.start();
        update(done);
    }
}

void ProgressBar::finish(qint64 done)
{
    if (m_enabled) {
        const double seconds = std::max(1e-9, static_cast<double>(m_clock.nsecsElapsed()) / 1e9);
        draw(done, static_cast<double>(done) / seconds,
             seconds < 9.95 ? u"%1 s"_s.arg(seconds, 0, 'f', 1) : clockTime(seconds));
        std::fputc('\n', stderr);
        m_drawn = false;
    }
}

void ProgressBar::clear()
{
    if (m_drawn) {
        std::fputs("\r\033[K", stderr);
        m_drawn = false;
    }
}

QString ProgressBar::line(int width, qint64 done, double bytesPerSecond, const QString &time) const
{
    const QString percent = m_total < 0 ? QString() : u"%1%"_s.arg(percentage(done, m_total), 3);
    const QString bytes = humanSize(done).rightJustified(10);
    const QString rate = (humanSize(std::llround(bytesPerSecond)) + u"/s"_s).rightJustified(12);
    const QString left = m_total < 0 ? QString() : time.rightJustified(5);

    // The figures, with fewer of them the narrower the terminal is.
    const int leastLabel = std::min(NarrowestLabel, displayWidth(m_label));
    for (QStringList figures : {QStringList {percent, bytes, rate, left},
                                QStringList {percent, rate, left}, QStringList {percent, left}}) {
        figures.removeAll(QString());
        const QString tail = figures.join(u"  "_s);
        const int room = width - displayWidth(tail) - 2;
        if (room >= leastLabel) {
            const QString head = fitted(m_label, std::min(room, WidestLabel));
            const int barRoom = std::min(room - displayWidth(head) - 2, WidestBar);
            const bool hasBar = m_total >= 0 && barRoom >= NarrowestBar;
            return head + (hasBar ? u"  "_s + bar(done, m_total, barRoom) : QString()) + u"  "_s
                + tail;
        }
    }
    return fitted(m_total < 0 ? humanSize(done) : percent, width);
}

void ProgressBar::draw(qint64 done, double bytesPerSecond, const QString &time)
{
    // One cell stays free: a terminal that has written its last one may be in the next line.
    const QString text = line(terminalWidth() - 1, done, bytesPerSecond, time);
    std::fprintf(stderr, "\r%s\033[K", toShell(text).constData());
    m_drawn = true;
}
