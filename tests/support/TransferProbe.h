#pragma once

#include <QSignalSpy>

#include <functional>
#include <optional>

#include <files/FileTransfer.h>

#include "Poll.h"

/** Answers a transfer's questions, and remembers them. */
class ScriptedAnswers : public TransferQuestions
{
public:
    void askConflict(const FileConflict &conflict, Answer answer) override
    {
        asked.append(conflict);
        if (onAsked) {
            onAsked();
        }
        if (choice) {
            answer(*choice, forAll);
        }
    }

    std::optional<ConflictChoice> choice; ///< none: it does not answer
    bool forAll = false;
    std::function<void()> onAsked;
    QVector<FileConflict> asked;
};

/** A transfer, with what must hold for the signals of every one of them. */
class TransferProbe
{
public:
    TransferProbe(FcpAppCORBA *controller, FileTransfer::Kind kind, const QStringList &sources,
                  const QString &targetFolder)
        : transfer(controller, kind, sources, targetFolder)
        , m_finished(&transfer, &FileTransfer::finished)
    {
        QObject::connect(&transfer, &FileTransfer::progressChanged,
                         [this](const TransferProgress &progress) { watch(progress); });
    }

    TransferSummary run()
    {
        transfer.start();
        return wait();
    }
    TransferSummary wait()
    {
        const bool ended = pollUntil([&] { return !m_finished.isEmpty(); });
        return ended ? m_finished.first().first().value<TransferSummary>() : TransferSummary();
    }

    int finishedCount() const { return int(m_finished.size()); }
    /// More than all, less than before, or after the end.
    bool isProgressWrong() const { return m_isWrong; }
    TransferProgress last() const { return m_last; }

    FileTransfer transfer;

private:
    void watch(const TransferProgress &progress)
    {
        m_isWrong = m_isWrong || progress.bytesDone > progress.bytesTotal
            || progress.bytesDone < m_last.bytesDone || progress.fileNumber > progress.fileCount
            || !m_finished.isEmpty();
        m_last = progress;
    }

    QSignalSpy m_finished;
    TransferProgress m_last;
    bool m_isWrong = false;
};
