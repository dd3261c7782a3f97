#include "LogSlot.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int slotCount = 9;

QString slotPath(const QString &path, int number)
{
    if (number == 1) {
        return path;
    }
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    return file.dir().filePath(u"%1.%2%3"_s.arg(file.completeBaseName()).arg(number).arg(suffix));
}

QByteArray textOf(const LogRing::Rest &rest)
{
    QByteArray text;
    for (const FwLogLine &line : rest.lines) {
        text += line.toText().toUtf8() + '\n';
    }
    return text;
}

QString remarkOn(const LogRing::Rest &rest, const QString &path)
{
    const QString text =
        u"Process %1 ended without closing %2; %3 messages were carried over, %4 had been dropped"_s;
    return text.arg(rest.process).arg(path).arg(rest.lines.size()).arg(rest.dropped);
}

} // namespace

LogSlot::LogSlot(const FwLog::Options &options)
    : m_options(options)
    , m_path(options.filePath)
{
    const QString path = options.filePath;
    if (path.isEmpty()) {
        return;
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    for (int number = 1; number <= slotCount && visit(slotPath(path, number)); ++number) { }
    if (!m_journal) {
        m_remarks.append(
            u"There is no journal beside %1: a crash loses the last lines"_s.arg(path));
    }
}

std::span<std::byte> LogSlot::map(int size)
{
    const auto memory = m_journal ? m_journal->map(size) : std::span<std::byte>();
    if (m_journal && memory.empty()) {
        m_remarks.append(
            u"No room for the journal of %1: a crash loses the last lines"_s.arg(m_path));
    }
    return memory;
}

void LogSlot::close()
{
    if (m_journal) {
        m_journal->remove();
    }
}

std::unique_ptr<LogFile> LogSlot::makeFile(const QString &path) const
{
    return path.isEmpty()
        ? nullptr
        : std::make_unique<LogFile>(path, m_options.maxFileSize, m_options.fileCount);
}

/// One for each path, wherever it is.
QString LogSlot::journalPath(const QString &path) const
{
    if (m_options.journalDirectory.isEmpty()) {
        return path + u".journal"_s;
    }
    const QString name = QFileInfo(path).absoluteFilePath().replace(u'/', u'!');
    return QDir(m_options.journalDirectory).filePath(name + u".journal"_s);
}

/// False when there can be no journals here at all.
bool LogSlot::visit(const QString &path)
{
    LogJournal::Lock lock = LogJournal::lock(journalPath(path), !m_journal);
    if (!lock.journal || !carryOver(*lock.journal, path)) {
        return lock.found != LogJournal::Found::Failed;
    }
    if (m_journal) {
        lock.journal->remove();
    } else {
        m_journal = std::move(lock.journal);
        m_path = path;
    }
    return true;
}

/// False when there are messages which the log file doesn't take; they stay where they are.
bool LogSlot::carryOver(const LogJournal &journal, const QString &path)
{
    const LogRing::Rest rest = journal.rest();
    if (!rest.valid) {
        return true;
    }
    const auto file = makeFile(path);
    if (rest.fileSize != LogRing::Unknown && quint64(file->size()) > rest.fileSize) {
        file->truncate(qint64(rest.fileSize));
    }
    const QByteArray text = textOf(rest);
    if (!text.isEmpty() && !file->write(text)) {
        m_remarks.append(u"Can't carry messages over to %1: %2"_s.arg(path, file->error()));
        return false;
    }
    m_remarks.append(remarkOn(rest, path));
    return true;
}
