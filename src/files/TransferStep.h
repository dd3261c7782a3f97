#pragma once

#include <QString>

#include <utility>

/** What became of a step of a transfer, and if it did not succeed, why, for a person. */
struct TransferStep
{
    enum class Code {
        Done,
        Exists, ///< the target is there, which was not to be replaced
        Skipped,
        Failed, ///< the next file may succeed
        Fatal, ///< no further step can succeed: the link is lost, the target is full
        Cancelled,
    };

    Code code = Code::Done;
    QString reason;

    bool isDone() const { return code == Code::Done; }
    bool endsRun() const { return code == Code::Fatal || code == Code::Cancelled; }

    static TransferStep done() { return {}; }
    static TransferStep failed(QString reason) { return {Code::Failed, std::move(reason)}; }
    static TransferStep fatal(QString reason) { return {Code::Fatal, std::move(reason)}; }
    static TransferStep exists() { return {Code::Exists, {}}; }
    static TransferStep skipped() { return {Code::Skipped, {}}; }
    static TransferStep cancelled() { return {Code::Cancelled, {}}; }
};
