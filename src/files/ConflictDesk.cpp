#include "ConflictDesk.h"

#include <condition_variable>
#include <mutex>

/// The question that is open, and its answer.
struct ConflictDesk::Slip
{
    quint64 begin()
    {
        const std::lock_guard lock(mutex);
        choice.reset();
        return ++question;
    }
    void answer(quint64 number, ConflictChoice chosen, bool isForAll)
    {
        const std::lock_guard lock(mutex);
        if (number == question && !choice) {
            choice = chosen;
            forAll = isForAll;
            answered.notify_all();
        }
    }

    std::mutex mutex;
    std::condition_variable answered;
    quint64 question = 0;
    std::optional<ConflictChoice> choice;
    bool forAll = false;
    bool closed = false;
};

/// The right to answer a question. Who lets it go without an answer can't be waited for.
class ConflictDesk::Ticket
{
public:
    explicit Ticket(const std::shared_ptr<Slip> &slip)
        : m_slip(slip)
        , m_number(slip->begin())
    {
    }
    Ticket(const Ticket &) = delete;
    Ticket &operator=(const Ticket &) = delete;
    ~Ticket() { answer(ConflictChoice::Cancel, false); }

    void answer(ConflictChoice choice, bool forAll) { m_slip->answer(m_number, choice, forAll); }

private:
    const std::shared_ptr<Slip> m_slip;
    const quint64 m_number;
};

ConflictDesk::ConflictDesk()
    : m_slip(std::make_shared<Slip>())
{
}

ConflictChoice ConflictDesk::decide(const FileConflict &conflict)
{
    if (m_forAll) {
        return *m_forAll;
    }
    if (!m_ask) {
        return ConflictChoice::Skip;
    }
    m_ask(conflict,
          [ticket = std::make_shared<Ticket>(m_slip)](ConflictChoice choice, bool forAll) {
              ticket->answer(choice, forAll);
          });
    std::unique_lock lock(m_slip->mutex);
    m_slip->answered.wait(lock, [this] { return m_slip->choice || m_slip->closed; });
    if (m_slip->closed) {
        return ConflictChoice::Cancel;
    }
    if (m_slip->forAll) {
        m_forAll = m_slip->choice;
    }
    return *m_slip->choice;
}

void ConflictDesk::close()
{
    const std::lock_guard lock(m_slip->mutex);
    m_slip->closed = true;
    m_slip->answered.notify_all();
}
