// Makes a folder have what another one has: sync.

#include "CommandLine.h"
#include "FileModels.h"
#include "Interrupt.h"
#include "Output.h"
#include "ProgressBar.h"
#include "RemoteTree.h"
#include "SyncPlan.h"
#include "Text.h"

#include <files/FileTransfer.h>

#include <QDir>
#include <QEventLoop>
#include <QSocketNotifier>

using namespace Qt::StringLiterals;

namespace {

/// What the user writes in front of a path on the instrument.
constexpr QChar InstrumentMark = u':';

bool isOnInstrument(const QString &operand)
{
    return operand.startsWith(InstrumentMark);
}

QString pathOf(const QString &operand)
{
    return isOnInstrument(operand) ? withoutTrailingSlash(operand.sliced(1))
                                   : QDir::cleanPath(QDir::current().absoluteFilePath(operand));
}

QString word(SyncPlan::Why why)
{
    switch (why) {
    case SyncPlan::Why::Missing:
        return u"missing"_s;
    case SyncPlan::Why::Size:
        return u"size"_s;
    case SyncPlan::Why::Older:
        return u"older"_s;
    }
    Q_UNREACHABLE();
}

/// Asked about what it knows to differ.
class AlwaysOverwrite : public TransferQuestions
{
public:
    void askConflict(const FileConflict &, Answer answer) override
    {
        answer(ConflictChoice::Overwrite, true);
    }
};

struct Account
{
    int carried = 0;
    qint64 bytes = 0;
    int failed = 0;
    QString stopped; ///< why the rest was not tried
};

class Sync
{
public:
    Sync(const Invocation &invocation, const Session &session, const Interrupt &interrupt)
        : m_interrupt(interrupt)
        , m_invocation(invocation)
        , m_session(session)
        , m_upload(isOnInstrument(invocation.operands().at(1)))
        , m_source(pathOf(invocation.operands().at(0)))
        , m_target(pathOf(invocation.operands().at(1)))
        , m_sourceSide(m_upload ? FileSide::computer() : FileSide::instrument(session))
        , m_targetSide(m_upload ? FileSide::instrument(session) : FileSide::computer())
        , m_bar(!invocation.json() && !invocation.isSet(u"quiet"_s))
    {
    }

    int run()
    {
        const SyncPlan plan = SyncPlan::make(*m_sourceSide, m_source, *m_targetSide, m_target);
        tell(plan);
        Account account;
        account.failed = static_cast<int>(plan.obstacles.size());
        if (!m_invocation.isSet(u"dry-run"_s)) {
            carry(plan, account);
            tell(account, plan.same);
        }
        return exitCode(account);
    }

private:
    bool isQuiet() const { return m_invocation.json() || m_invocation.isSet(u"quiet"_s); }

    void tell(const SyncPlan &plan)
    {
        for (const SyncPlan::Obstacle &obstacle : plan.obstacles) {
            Output::error(u"sync: "_s + fileFailure(obstacle.path, obstacle.reason).message);
        }
        if (!m_invocation.isSet(u"dry-run"_s)) {
            return;
        }
        QJsonArray array;
        for (const SyncPlan::Batch &batch : plan.batches) {
            for (const SyncPlan::Item &item : batch.items) {
                const QString path = item.source + (item.isFolder ? u"/"_s : QString());
                array.append(QJsonObject {{u"source"_s, path},
                                          {u"folder"_s, batch.targetFolder},
                                          {u"why"_s, word(item.why)}});
                if (!m_invocation.json()) {
                    Output::line(u"%1 %2"_s.arg(word(item.why), -8).arg(Output::name(path)));
                }
            }
        }
        if (m_invocation.json()) {
            Output::json(array);
        }
    }

    void carry(const SyncPlan &plan, Account &account)
    {
        for (const SyncPlan::Batch &batch : plan.batches) {
            if (m_interrupt.requested() || !account.stopped.isEmpty()) {
                return;
            }
            m_targetSide->makeFolder(batch.targetFolder);
            carry(batch, account);
        }
    }

    void carry(const SyncPlan::Batch &batch, Account &account)
    {
        QStringList sources;
        for (const SyncPlan::Item &item : batch.items) {
            sources.append(item.source);
        }
        AlwaysOverwrite questions;
        FileTransfer transfer(m_session.controller(),
                              m_upload ? FileTransfer::Kind::Upload : FileTransfer::Kind::Download,
                              sources, batch.targetFolder);
        transfer.setQuestions(&questions);
        QSocketNotifier interruption(m_interrupt.descriptor(), QSocketNotifier::Read);
        QEventLoop loop;
        TransferSummary summary;
        QObject::connect(&interruption, &QSocketNotifier::activated, &loop, [&] {
            interruption.setEnabled(false);
            transfer.cancel();
        });
        QObject::connect(&transfer, &FileTransfer::progressChanged, &loop,
                         [&](const TransferProgress &progress) { show(progress); });
        QObject::connect(&transfer, &FileTransfer::finished, &loop,
                         [&](const TransferSummary &result) {
                             summary = result;
                             loop.quit();
                         });
        m_bar.start(batch.targetFolder, -1);
        transfer.start();
        loop.exec();
        m_bar.clear();
        add(summary, account);
    }

    void show(const TransferProgress &progress) { m_bar.updateNowAndThen(progress.bytesDone); }

    void add(const TransferSummary &summary, Account &account)
    {
        account.carried += summary.carried;
        account.bytes += summary.bytes;
        account.failed += static_cast<int>(summary.failures.size()) + summary.notTried;
        for (const TransferSummary::Failure &failure : summary.failures) {
            Output::error(u"sync: "_s
                          + fileFailure(failure.path, printable(failure.reason)).message);
        }
        if (!summary.reason.isEmpty()) {
            account.stopped = summary.reason;
            Output::error(u"sync: "_s + printable(summary.reason));
        }
    }

    void tell(const Account &account, int same) const
    {
        if (m_invocation.json()) {
            Output::json(QJsonObject {{u"carried"_s, account.carried},
                                      {u"bytes"_s, account.bytes},
                                      {u"same"_s, same},
                                      {u"failed"_s, account.failed}});
        } else if (!isQuiet()) {
            Output::line(u"%1 carried (%2), %3 the same"_s.arg(account.carried)
                             .arg(humanSize(account.bytes))
                             .arg(same));
        }
    }

    int exitCode(const Account &account) const
    {
        if (m_interrupt.requested()) {
            return m_interrupt.exitCode();
        }
        if (!m_session.isLinkUp()) {
            return static_cast<int>(Exit::NoLink);
        }
        const bool isDone = account.failed == 0 && account.stopped.isEmpty();
        return static_cast<int>(isDone ? Exit::Done : Exit::Failed);
    }

    const Interrupt &m_interrupt;
    const Invocation &m_invocation;
    const Session &m_session;
    const bool m_upload;
    const QString m_source;
    const QString m_target;
    const std::unique_ptr<FileSide> m_sourceSide;
    const std::unique_ptr<FileSide> m_targetSide;
    ProgressBar m_bar;
};

int sync(const Invocation &invocation)
{
    const QStringList operands = invocation.operands();
    if (isOnInstrument(operands[0]) == isOnInstrument(operands[1])) {
        invocation.usageError(
            u"one of the two is on the instrument: write a colon in front of its path"_s);
    }
    const Interrupt interrupt;
    const Session session(invocation.address());
    return Sync(invocation, session, interrupt).run();
}

} // namespace

QList<Command> syncCommands()
{
    return {
        {.name = u"sync"_s,
         .operands = u"SOURCE DESTINATION"_s,
         .summary = u"Carry what a folder lacks; ':' marks the path on the instrument."_s,
         .options = {{{u"n"_s, u"dry-run"_s}, u"Only say what would be carried, and why."_s},
                     {{u"q"_s, u"quiet"_s}, u"Say nothing but errors."_s}},
         .fewest = 2,
         .most = 2,
         .run = sync},
    };
}
