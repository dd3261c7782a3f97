#include "LogRing.h"

#include <QDateTime>

#include <cstring>
#include <new>
#include <unistd.h>

namespace {

constexpr quint64 magic = 0x31474f4c58455601; // changes with the layout

using Position = std::atomic<quint64>;
static_assert(Position::is_always_lock_free, "what is in shared memory can have no lock");

/// Keeps stores in order for a signal that ends the process between them.
void inOrder()
{
    std::atomic_signal_fence(std::memory_order_seq_cst);
}

} // namespace

struct LogRing::Header
{
    quint64 magic;
    qint64 process;
    quint64 capacity;
    Position head; ///< positions only grow; the place is the rest of the division by capacity
    Position tail;
    Position dropped;
    Position fileSize;
};

struct LogRing::Record
{
    quint32 size; ///< of all, with this head
    quint32 textSize;
    qint64 time;
    quint64 number;
    quint16 categorySize;
    quint16 threadSize;
    quint32 level;
};

LogRing::LogRing(std::span<std::byte> memory, quint64 lastNumber)
    : m_header(new (memory.data()) Header {})
    , m_ring(memory.subspan(sizeof(Header)))
    , m_number(lastNumber)
{
    m_header->process = getpid();
    m_header->capacity = m_ring.size();
    m_header->fileSize = Unknown;
    inOrder();
    m_header->magic = magic;
}

LogRing::Rest LogRing::read(std::span<const std::byte> memory)
{
    Rest rest;
    if (memory.size() < sizeof(Header)) {
        return rest;
    }
    const auto *header = reinterpret_cast<const Header *>(memory.data());
    const auto ring = memory.subspan(sizeof(Header));
    const quint64 size = header->head - header->tail;
    if (header->magic != magic || header->capacity != ring.size() || size > ring.size()) {
        return rest;
    }
    QByteArray records;
    records.reserve(qsizetype(size));
    for (quint64 at = header->tail; at != header->head; ++at) {
        records.append(char(ring[at % ring.size()]));
    }
    rest.lines = parse(records);
    rest.dropped = header->dropped;
    rest.fileSize = header->fileSize;
    rest.process = header->process;
    rest.valid = true;
    return rest;
}

QVector<FwLogLine> LogRing::parse(const QByteArray &records)
{
    QVector<FwLogLine> lines;
    qsizetype at = 0;
    while (records.size() - at >= qsizetype(sizeof(Record))) {
        Record record;
        std::memcpy(&record, records.constData() + at, sizeof record);
        const quint64 parts =
            quint64(record.categorySize) + record.threadSize + record.textSize + sizeof record;
        if (parts != record.size || parts > quint64(records.size() - at)) {
            break;
        }
        const char *text = records.constData() + at + sizeof record;
        const auto next = [&text](quint32 size) {
            const QString string = QString::fromUtf8(text, qsizetype(size));
            text += size;
            return string;
        };
        FwLogLine line {record.number, record.time, QtMsgType(record.level), {}, {}, {}};
        line.category = next(record.categorySize);
        line.thread = next(record.threadSize);
        line.text = next(record.textSize);
        lines.append(line);
        at += record.size;
    }
    return lines;
}

void LogRing::append(QtMsgType level, QByteArrayView category, QByteArrayView thread,
                     QByteArrayView text)
{
    Record record {};
    record.categorySize = quint16(qMin<qsizetype>(category.size(), 255));
    record.threadSize = quint16(qMin<qsizetype>(thread.size(), 255));
    record.textSize = quint32(qMin<qsizetype>(text.size(), qsizetype(m_ring.size() / 2)));
    record.size =
        quint32(sizeof record) + record.categorySize + record.threadSize + record.textSize;
    record.time = QDateTime::currentMSecsSinceEpoch();
    record.number = ++m_number;
    record.level = level;
    makeRoom(record.size);
    quint64 position = m_header->head.load(std::memory_order_relaxed);
    put(position, {reinterpret_cast<const char *>(&record), qsizetype(sizeof record)});
    put(position, category.first(record.categorySize));
    put(position, thread.first(record.threadSize));
    put(position, text.first(qsizetype(record.textSize)));
    inOrder();
    m_header->head.store(position, std::memory_order_release);
}

LogRing::Batch LogRing::take(quint64 limit)
{
    const quint64 tail = m_header->tail;
    const quint64 head = m_header->head;
    quint64 end = tail;
    while (end != head && (end == tail || end + sizeAt(end) - tail <= limit)) {
        end += sizeAt(end);
    }
    Batch batch {QByteArray(qsizetype(end - tail), Qt::Uninitialized), end, m_header->dropped};
    get(tail, batch.records.data(), end - tail);
    m_taken = end;
    return batch;
}

void LogRing::commit(const Batch &batch, quint64 fileSize)
{
    // Killed here, the process leaves lines that are in the file already, rather than none.
    m_header->fileSize = fileSize;
    inOrder();
    if (m_header->tail < batch.end) {
        m_header->tail = batch.end;
    }
    m_header->dropped -= batch.dropped;
}

void LogRing::setFileSize(quint64 size)
{
    m_header->fileSize = size;
}

quint64 LogRing::head() const
{
    return m_header->head;
}

bool LogRing::isEmpty() const
{
    return m_header->head == m_header->tail;
}

bool LogRing::isPressed() const
{
    return m_header->head - m_header->tail > m_ring.size() / 2;
}

void LogRing::makeRoom(quint64 size)
{
    quint64 tail = m_header->tail;
    const quint64 head = m_header->head;
    while (head + size - tail > m_ring.size()) {
        if (tail >= m_taken) {
            ++m_header->dropped;
        } else {
            // The writer has it, and the file may have it or not.
            m_header->fileSize = Unknown;
        }
        tail += sizeAt(tail);
        m_header->tail = tail;
    }
    inOrder();
}

void LogRing::put(quint64 &position, QByteArrayView bytes)
{
    const size_t size = size_t(bytes.size());
    const size_t place = size_t(position % m_ring.size());
    const size_t first = qMin(size, m_ring.size() - place);
    std::memcpy(m_ring.data() + place, bytes.data(), first);
    std::memcpy(m_ring.data(), bytes.data() + first, size - first);
    position += size;
}

void LogRing::get(quint64 position, void *to, quint64 size) const
{
    const size_t place = size_t(position % m_ring.size());
    const size_t first = qMin(size_t(size), m_ring.size() - place);
    std::memcpy(to, m_ring.data() + place, first);
    std::memcpy(static_cast<char *>(to) + first, m_ring.data(), size_t(size) - first);
}

quint64 LogRing::sizeAt(quint64 position) const
{
    quint32 size = 0;
    get(position, &size, sizeof size);
    return size;
}
