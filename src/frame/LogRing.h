#pragma once

#include <QByteArray>
#include <QVector>

#include <atomic>
#include <cstddef>
#include <span>

#include "FwLogLine.h"

/**
 * Messages in a ring of bytes, which may be memory that outlives the process. When it is full the
 * oldest are overwritten, and counted.
 *
 * A message is there from the moment at which the head moves behind it, so that a process can be
 * killed at any instruction. Not thread-safe: LogQueue is.
 */
class LogRing
{
public:
    static constexpr quint64 Unknown = ~quint64(0);

    /// What is copied out of the ring to be written.
    struct Batch
    {
        QByteArray records;
        quint64 end = 0; ///< position behind the last of them
        quint64 dropped = 0; ///< messages that were overwritten before the first of them
    };
    /// What a process has left behind.
    struct Rest
    {
        QVector<FwLogLine> lines;
        quint64 dropped = 0;
        quint64 fileSize = Unknown; ///< of the log file without any of the lines
        qint64 process = 0;
        bool valid = false;
    };

    /** Begins anew in @p memory, which must stay longer; lines are counted on from @p lastNumber.
     */
    LogRing(std::span<std::byte> memory, quint64 lastNumber);
    /** Reads what another LogRing has left in @p memory, however damaged it is. */
    static Rest read(std::span<const std::byte> memory);
    static QVector<FwLogLine> parse(const QByteArray &records);

    /** Strings are UTF-8; @p line gets its number here. */
    void append(QtMsgType level, QByteArrayView category, QByteArrayView thread,
                QByteArrayView text);
    /** Copies messages of @p limit bytes, or one that is larger. They stay until commit(). */
    Batch take(quint64 limit);
    /** Removes what was taken; the log file has @p fileSize bytes with it. */
    void commit(const Batch &batch, quint64 fileSize);
    /** How many bytes the log file has without what is in the ring. */
    void setFileSize(quint64 size);

    quint64 head() const;
    quint64 lastNumber() const { return m_number; }
    bool isEmpty() const;
    /** More than half full. */
    bool isPressed() const;

private:
    struct Header;
    struct Record;

    void makeRoom(quint64 size);
    void put(quint64 &position, QByteArrayView bytes);
    void get(quint64 position, void *to, quint64 size) const;
    quint64 sizeAt(quint64 position) const;

    Header *m_header;
    std::span<std::byte> m_ring;
    quint64 m_taken = 0; ///< messages before this position are with the writer
    quint64 m_number;
};
