#include "FwLogLine.h"

#include <array>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Ends a line, steers a terminal, or is taken for the end of a line by an editor.
bool isControl(char16_t c)
{
    return (c < 0x20 && c != u'\t') || (c >= 0x7f && c < 0xa0) || c == 0x2028 || c == 0x2029;
}

void appendEscape(QString &line, char16_t c)
{
    if (c == u'\n') {
        line += u"\\n"_s;
    } else if (c == u'\r') {
        line += u"\\r"_s;
    } else if (c < 0x100) {
        line += u"\\x%1"_s.arg(uint(c), 2, 16, QChar(u'0'));
    } else {
        line += u"\\u%1"_s.arg(uint(c), 4, 16, QChar(u'0'));
    }
}

void appendEscaped(QString &line, const QString &text)
{
    for (const QChar c : text) {
        if (isControl(c.unicode())) {
            appendEscape(line, c.unicode());
        } else {
            line += c;
        }
    }
}

/// QDateTime takes ten times as long.
QString isoTime(qint64 time)
{
    const std::time_t seconds = time / 1000;
    std::tm parts {};
    gmtime_r(&seconds, &parts);
    std::array<char, 40> text {};
    const size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &parts);
    return QString::fromLatin1(text.data(), qsizetype(length))
        + u".%1Z"_s.arg(time % 1000, 3, 10, QChar(u'0'));
}

} // namespace

QString FwLogLine::toText() const
{
    QString line;
    line.reserve(text.size() + 80);
    line += isoTime(time) + u' ' + levelName(level) + u' ';
    appendEscaped(line, category);
    line += u' ';
    appendEscaped(line, thread);
    line += u": "_s;
    appendEscaped(line, text);
    return line;
}

QString FwLogLine::levelName(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return u"debug"_s;
    case QtInfoMsg:
        return u"info"_s;
    case QtWarningMsg:
        return u"warning"_s;
    case QtCriticalMsg:
        return u"critical"_s;
    case QtFatalMsg:
        break;
    }
    return u"fatal"_s;
}

int FwLogLine::severity(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return 0;
    case QtInfoMsg:
        return 1;
    case QtWarningMsg:
        return 2;
    case QtCriticalMsg:
        return 3;
    case QtFatalMsg:
        break;
    }
    return 4;
}
