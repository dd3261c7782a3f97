#include "TcpProxy.h"

#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <functional>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include "Sockets.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr qsizetype HighWater = 4 * 1024 * 1024;
constexpr auto RateSlice = 10ms;

/// Bytes on their way out, and what is to be done when they are gone.
struct Parcel
{
    QByteArray bytes;
    Clock::time_point due;
    std::optional<TcpProxy::Ending> ending = {};
};

/// One direction of a connection.
struct Stream
{
    QByteArray arrived; ///< not yet a whole message
    std::deque<Parcel> parcels;
    qsizetype sentOfFirst = 0;
    Clock::time_point notBefore;
    bool ended = false; ///< the sender has closed; flush, then close the other side

    bool isFull() const
    {
        qsizetype sum = 0;
        for (const Parcel &parcel : parcels) {
            sum += parcel.bytes.size();
        }
        return sum >= HighWater;
    }
};

} // namespace

using Direction = TcpProxy::Direction;

namespace {

struct Connection
{
    int number = 0;
    FileDescriptor client;
    FileDescriptor controller;
    Stream toController;
    Stream toClient;
    /// The operations asked for by the requests of each direction, by request id.
    QHash<quint32, QByteArray> asked[2];
    bool dead = false;

    FileDescriptor &source(Direction direction)
    {
        return direction == Direction::ToController ? client : controller;
    }
    FileDescriptor &sink(Direction direction)
    {
        return direction == Direction::ToController ? controller : client;
    }
    Stream &stream(Direction direction)
    {
        return direction == Direction::ToController ? toController : toClient;
    }

    void end(TcpProxy::Ending ending)
    {
        if (ending == TcpProxy::Ending::Reset) {
            resetOnClose(client);
            resetOnClose(controller);
        }
        client.reset();
        controller.reset();
        dead = true;
    }

    /// The operation that a message belongs to; of a reply, the one it answers.
    QByteArray operationOf(Direction direction, QByteArrayView message)
    {
        if (const auto request = Giop::parseRequest(message)) {
            asked[int(direction)].insert(request->id, request->operation);
            return request->operation;
        }
        if (const auto reply = Giop::parseReply(message)) {
            const auto opposite = direction == Direction::ToController ? Direction::ToClient
                                                                       : Direction::ToController;
            return asked[int(opposite)].value(reply->id);
        }
        return {};
    }
};

constexpr Direction Directions[] = {Direction::ToController, Direction::ToClient};

} // namespace

class TcpProxy::Worker
{
public:
    Worker()
        : m_listener(listenOn(0))
        , m_port(localPort(m_listener))
        , m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
        , m_thread([this] { run(); })
    {
    }

    ~Worker()
    {
        change([this] { m_quit = true; });
        m_thread.join();
    }

    quint16 port() const { return m_port; }

    /// Has the thread change its state, and waits for that.
    void change(std::function<void()> doChange)
    {
        std::unique_lock lock(m_mutex);
        m_changes.push_back(std::move(doChange));
        const quint64 one = 1;
        [[maybe_unused]] const auto written = ::write(m_wake.get(), &one, sizeof one);
        const quint64 number = ++m_changesAsked;
        m_changed.wait(lock, [&] { return m_changesDone >= number; });
    }

    template<typename Question>
    auto ask(Question &&question) const
    {
        const std::lock_guard lock(m_mutex);
        return question();
    }

    void setListening(bool listening)
    {
        if (!listening) {
            m_listener.reset();
        } else if (!m_listener.isValid()) {
            m_listener = listenOn(m_port);
        }
    }

    void cutConnections(Ending ending)
    {
        for (Connection &connection : m_connections) {
            connection.end(ending);
        }
        m_connections.clear();
    }

    // Changed by the thread only, under m_mutex.
    quint16 m_controllerPort = 0;
    std::optional<Strike> m_strike;
    int m_matched = 0;
    int m_struck = 0;
    bool m_hole = false;
    qint64 m_rate = 0;
    int m_accepted = 0;
    QVector<Message> m_record;
    std::list<Connection> m_connections;

private:
    void run();
    void makeChanges();
    std::vector<pollfd> descriptors();
    int pollTimeOut() const;
    void accept();
    void receive(Connection &connection, Direction direction);
    void takeMessages(Connection &connection, Direction direction);
    void passMessage(Connection &connection, Direction direction, QByteArray message);
    bool strikes(Direction direction, const QByteArray &operation);
    void strikeMessage(Stream &stream, QByteArray message);
    void queue(Stream &stream, const QByteArray &bytes, std::optional<Ending> ending = {});
    void send(Connection &connection, Direction direction);
    qsizetype allowance() const;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::function<void()>> m_changes;
    quint64 m_changesAsked = 0;
    quint64 m_changesDone = 0;
    FileDescriptor m_listener;
    const quint16 m_port;
    FileDescriptor m_wake;
    bool m_quit = false;
    Clock::time_point m_nextSlice;
    std::thread m_thread;
};

void TcpProxy::Worker::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_quit) {
        std::vector<pollfd> waiting = descriptors();
        const int timeOut = pollTimeOut();
        lock.unlock();
        ::poll(waiting.data(), waiting.size(), timeOut);
        lock.lock();
        makeChanges();
        accept();
        if (m_hole) {
            continue;
        }
        const bool newSlice = m_rate == 0 || Clock::now() >= m_nextSlice;
        if (newSlice) {
            m_nextSlice = Clock::now() + RateSlice;
        }
        for (Connection &connection : m_connections) {
            for (const Direction direction : Directions) {
                receive(connection, direction);
                if (newSlice) {
                    send(connection, direction);
                }
            }
        }
        m_connections.remove_if([](const Connection &connection) { return connection.dead; });
    }
    cutConnections(Ending::Close);
}

void TcpProxy::Worker::makeChanges()
{
    quint64 ignored = 0;
    [[maybe_unused]] const auto got = ::read(m_wake.get(), &ignored, sizeof ignored);
    for (const std::function<void()> &doChange : m_changes) {
        doChange();
    }
    m_changesDone += m_changes.size();
    m_changes.clear();
    m_changed.notify_all();
}

std::vector<pollfd> TcpProxy::Worker::descriptors()
{
    std::vector<pollfd> result = {{m_wake.get(), POLLIN, 0}};
    if (m_listener.isValid()) {
        result.push_back({m_listener.get(), POLLIN, 0});
    }
    if (m_hole) {
        return result;
    }
    for (Connection &connection : m_connections) {
        for (const Direction direction : Directions) {
            const Stream &stream = connection.stream(direction);
            if (!stream.ended && !stream.isFull()) {
                result.push_back({connection.source(direction).get(), POLLIN, 0});
            }
            const bool due = !stream.parcels.empty() && stream.parcels.front().due <= Clock::now();
            if (due && m_rate == 0) {
                result.push_back({connection.sink(direction).get(), POLLOUT, 0});
            }
        }
    }
    return result;
}

int TcpProxy::Worker::pollTimeOut() const
{
    std::optional<Clock::time_point> next;
    for (const Connection &connection : m_connections) {
        for (const Stream *stream : {&connection.toController, &connection.toClient}) {
            if (!stream->parcels.empty()) {
                const auto due = std::max(stream->parcels.front().due,
                                          m_rate > 0 ? m_nextSlice : Clock::time_point());
                next = std::min(next.value_or(due), due);
            }
        }
    }
    if (!next || m_hole) {
        return -1;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
    // What is due already is waited for by POLLOUT, not by spinning.
    return left.count() > 0 ? int(left.count()) : (m_rate > 0 ? 1 : -1);
}

void TcpProxy::Worker::accept()
{
    while (m_listener.isValid()) {
        FileDescriptor client(::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (!client.isValid()) {
            return;
        }
        ++m_accepted;
        FileDescriptor controller = connectTo(m_controllerPort);
        if (!controller.isValid()) {
            resetOnClose(client);
            continue;
        }
        makeNonBlocking(client);
        makeNonBlocking(controller);
        Connection &connection = m_connections.emplace_back();
        connection.number = m_accepted;
        connection.client = std::move(client);
        connection.controller = std::move(controller);
    }
}

void TcpProxy::Worker::receive(Connection &connection, Direction direction)
{
    Stream &stream = connection.stream(direction);
    while (!connection.dead && !stream.ended && !stream.isFull()) {
        char buffer[65536];
        const ssize_t got = ::recv(connection.source(direction).get(), buffer, sizeof buffer, 0);
        if (got > 0) {
            stream.arrived.append(buffer, got);
            takeMessages(connection, direction);
        } else if (got == 0) {
            stream.ended = true;
            queue(stream, stream.arrived, Ending::Close);
        } else if (errno == EAGAIN || errno == EINTR) {
            return;
        } else {
            connection.end(Ending::Reset);
        }
    }
}

void TcpProxy::Worker::takeMessages(Connection &connection, Direction direction)
{
    Stream &stream = connection.stream(direction);
    while (stream.arrived.size() >= Giop::HeaderSize && !stream.ended) {
        const std::optional<Giop::Header> header = Giop::parseHeader(stream.arrived);
        // What is not GIOP goes through as it comes.
        const qsizetype size = header ? header->messageSize() : stream.arrived.size();
        if (stream.arrived.size() < size) {
            return;
        }
        passMessage(connection, direction, stream.arrived.first(size));
        stream.arrived.remove(0, size);
    }
}

void TcpProxy::Worker::passMessage(Connection &connection, Direction direction, QByteArray message)
{
    const std::optional<Giop::Header> header = Giop::parseHeader(message);
    const QByteArray operation = connection.operationOf(direction, message);
    m_record.append({connection.number, direction,
                     header ? header->type : Giop::MessageType::MessageError, operation,
                     message.first(std::min(message.size(), RecordedBytes))});
    Stream &stream = connection.stream(direction);
    if (header && strikes(direction, operation)) {
        ++m_struck;
        strikeMessage(stream, std::move(message));
    } else {
        queue(stream, message);
    }
}

bool TcpProxy::Worker::strikes(Direction direction, const QByteArray &operation)
{
    if (!m_strike || m_strike->direction != direction
        || (!m_strike->operation.isEmpty() && m_strike->operation != operation)) {
        return false;
    }
    const int number = m_matched++;
    return number >= m_strike->passFirst
        && (m_strike->times < 0 || number < m_strike->passFirst + m_strike->times);
}

void TcpProxy::Worker::strikeMessage(Stream &stream, QByteArray message)
{
    constexpr quint32 twoGigabytes = 0x7fffff00;
    switch (m_strike->action) {
    case Action::ResetBefore:
        return queue(stream, {}, Ending::Reset);
    case Action::CloseBefore:
        return queue(stream, {}, Ending::Close);
    case Action::ResetAfter:
        return queue(stream, message, Ending::Reset);
    case Action::CloseAfter:
        return queue(stream, message, Ending::Close);
    case Action::ResetInside:
        return queue(stream, message.first(message.size() / 2), Ending::Reset);
    case Action::CloseInside:
        return queue(stream, message.first(message.size() / 2), Ending::Close);
    case Action::Swallow:
        return;
    case Action::BreakMagic:
        message.replace(0, 4, "HTTP");
        return queue(stream, message);
    case Action::FlipLastByte:
        message.back() = char(~message.back());
        return queue(stream, message);
    case Action::AnnounceTwoGigabytes:
        if (Giop::parseHeader(message)->littleEndian) {
            qToLittleEndian(twoGigabytes, message.data() + 8);
        } else {
            qToBigEndian(twoGigabytes, message.data() + 8);
        }
        return queue(stream, message);
    case Action::Delay:
        stream.notBefore = Clock::now() + m_strike->delay;
        return queue(stream, message);
    }
}

void TcpProxy::Worker::queue(Stream &stream, const QByteArray &bytes, std::optional<Ending> ending)
{
    stream.parcels.push_back({bytes, std::max(stream.notBefore, Clock::now()), ending});
    stream.ended = stream.ended || ending;
}

qsizetype TcpProxy::Worker::allowance() const
{
    if (m_rate == 0) {
        return std::numeric_limits<qsizetype>::max();
    }
    const auto slice = std::chrono::duration<double>(RateSlice).count();
    return std::max<qsizetype>(1, qsizetype(double(m_rate) * slice));
}

void TcpProxy::Worker::send(Connection &connection, Direction direction)
{
    Stream &stream = connection.stream(direction);
    qsizetype allowed = allowance();
    while (!connection.dead && !stream.parcels.empty()
           && stream.parcels.front().due <= Clock::now()) {
        const Parcel &parcel = stream.parcels.front();
        const qsizetype left = parcel.bytes.size() - stream.sentOfFirst;
        if (left > 0) {
            const ssize_t sent = ::send(connection.sink(direction).get(),
                                        parcel.bytes.constData() + stream.sentOfFirst,
                                        size_t(std::min(left, allowed)), MSG_NOSIGNAL);
            if (sent < 0) {
                if (errno != EAGAIN && errno != EINTR) {
                    connection.end(Ending::Reset);
                }
                return;
            }
            stream.sentOfFirst += sent;
            allowed -= sent;
        }
        if (stream.sentOfFirst < parcel.bytes.size()) {
            return;
        }
        if (parcel.ending) {
            connection.end(*parcel.ending);
            return;
        }
        stream.parcels.pop_front();
        stream.sentOfFirst = 0;
    }
}

TcpProxy::TcpProxy()
    : m_worker(std::make_unique<Worker>())
{
}

TcpProxy::~TcpProxy() = default;

quint16 TcpProxy::port() const
{
    return m_worker->port();
}

void TcpProxy::setController(quint16 port)
{
    m_worker->change([&] { m_worker->m_controllerPort = port; });
}

void TcpProxy::strike(const Strike &strike)
{
    m_worker->change([&] {
        m_worker->m_strike = strike;
        m_worker->m_matched = 0;
        m_worker->m_struck = 0;
    });
}

int TcpProxy::struck() const
{
    return m_worker->ask([&] { return m_worker->m_struck; });
}

void TcpProxy::behave()
{
    m_worker->change([&] {
        m_worker->m_strike.reset();
        m_worker->m_hole = false;
        m_worker->m_rate = 0;
        m_worker->setListening(true);
    });
}

void TcpProxy::cutConnections(Ending ending)
{
    m_worker->change([&] { m_worker->cutConnections(ending); });
}

void TcpProxy::setListening(bool listening)
{
    m_worker->change([&] { m_worker->setListening(listening); });
}

void TcpProxy::setHole(bool hole)
{
    m_worker->change([&] { m_worker->m_hole = hole; });
}

void TcpProxy::setRate(qint64 bytesPerSecond)
{
    m_worker->change([&] { m_worker->m_rate = bytesPerSecond; });
}

int TcpProxy::acceptedConnections() const
{
    return m_worker->ask([&] { return m_worker->m_accepted; });
}

int TcpProxy::openConnections() const
{
    return m_worker->ask([&] { return int(m_worker->m_connections.size()); });
}

QVector<TcpProxy::Message> TcpProxy::recorded() const
{
    return m_worker->ask([&] { return m_worker->m_record; });
}

void TcpProxy::clearRecord()
{
    m_worker->change([&] { m_worker->m_record.clear(); });
}
