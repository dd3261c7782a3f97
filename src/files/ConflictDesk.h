#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "FileTransfer.h"

/** Where a transfer's worker gets its conflicts decided: it asks, waits, and remembers. */
class ConflictDesk
{
public:
    /** Passes a question on, to the thread where it is to be asked; called on the worker. */
    using Ask = std::function<void(const FileConflict &conflict, TransferQuestions::Answer answer)>;

    ConflictDesk();

    /** Without one conflicts are skipped. Before the worker starts. */
    void setAsk(Ask ask) { m_ask = std::move(ask); }
    /** Blocks until there is an answer or the desk is closed. For the worker. */
    ConflictChoice decide(const FileConflict &conflict);
    /** Answers what is asked, now and later, with Cancel. From any thread. */
    void close();

private:
    class Ticket;
    struct Slip;

    const std::shared_ptr<Slip> m_slip; ///< shared with answers that come when this is gone
    Ask m_ask;
    std::optional<ConflictChoice> m_forAll;
};
