#pragma once

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <optional>

#include <files/FileTransfer.h>

#include "FileTree.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Poll.h"
#include "SimulatorProcess.h"
#include "TcpProxy.h"

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
        } else {
            unanswered = answer;
        }
    }

    std::optional<ConflictChoice> choice; ///< none: it does not answer
    bool forAll = false;
    std::function<void()> onAsked;
    QVector<FileConflict> asked;
    Answer unanswered;
};

/** A transfer, with what must hold for the signals of every one of them. */
class TransferProbe
{
public:
    TransferProbe(FcpAppCORBA *controller, FileTransfer::Kind kind, const QStringList &sources,
                  const QString &targetFolder, TransferQuestions *questions)
        : transfer(controller, kind, sources, targetFolder)
        , m_finished(&transfer, &FileTransfer::finished)
    {
        transfer.setQuestions(questions);
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
    int progressCount() const { return m_progressCount; }
    /** More than all, less than before, or after the end. */
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
        ++m_progressCount;
    }

    QSignalSpy m_finished;
    TransferProgress m_last;
    int m_progressCount = 0;
    bool m_isWrong = false;
};

/** A test of transfers from a folder "from" into a folder "to", of the kind that it has chosen. */
class TransferTest : public GuardedTest
{
protected:
    using Kind = FileTransfer::Kind;
    using Outcome = TransferSummary::Outcome;

    /** A new link, empty folders, and overwriting whatever is asked. */
    void prepare()
    {
        GuardedTest::init();
        m_proxy.behave();
        m_proxy.setController(m_simulator.port());
        m_directory.emplace();
        for (const auto &side :
             {m_directory->path(), m_simulator.local(QStringLiteral("/Internal"))}) {
            QDir(side + QStringLiteral("/from")).removeRecursively();
            QDir(side + QStringLiteral("/to")).removeRecursively();
            QDir(side).mkpath(QStringLiteral("from"));
            QDir(side).mkpath(QStringLiteral("to"));
        }
        m_answers = {};
        m_answers.choice = ConflictChoice::Overwrite;
        m_link.emplace();
        QVERIFY(m_link->connectTo(m_proxy.port()));
    }
    /** Checks what must hold at the end of each of them. */
    void check()
    {
        QVERIFY(!m_probe || m_probe->finishedCount() == 1);
        QVERIFY(!m_probe || !m_probe->isProgressWrong());
        m_probe.reset();
        m_simulator.order("latency 0");
        QVERIFY(pollUntil([&] { return m_simulator.openFiles().isEmpty(); }));
        const QStringList left = treeOf(localTarget()).keys().filter(QStringLiteral(".vex"));
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char(' '))));
        m_link.reset();
        GuardedTest::cleanup();
    }

    static void addKinds()
    {
        QTest::addColumn<Kind>("kind");
        for (const auto &[name, kind] : kinds()) {
            QTest::newRow(name) << kind;
        }
    }
    static std::initializer_list<std::pair<const char *, Kind>> kinds()
    {
        static constexpr std::initializer_list<std::pair<const char *, Kind>> all = {
            {"upload", Kind::Upload},
            {"download", Kind::Download},
            {"local copy", Kind::LocalCopy}};
        return all;
    }

    QString source() const
    {
        return m_kind == Kind::Download ? QStringLiteral("/Internal/from") : localSource();
    }
    QString target() const
    {
        return m_kind == Kind::Upload ? QStringLiteral("/Internal/to") : localTarget();
    }
    QString localSource() const { return local(m_kind == Kind::Download, QStringLiteral("from")); }
    QString localTarget() const { return local(m_kind == Kind::Upload, QStringLiteral("to")); }

    /** A transfer of entries of the source folder; not started. */
    TransferProbe &begin(const QStringList &names)
    {
        QStringList paths;
        for (const QString &name : names) {
            paths.append(source() + QLatin1Char('/') + name);
        }
        return m_probe.emplace(m_link->proxy(), m_kind, paths, target(), &m_answers);
    }

    TcpProxy m_proxy;
    SimulatorProcess m_simulator {m_proxy.port()};
    std::optional<Link> m_link;
    std::optional<QTemporaryDir> m_directory;
    ScriptedAnswers m_answers;
    std::optional<TransferProbe> m_probe;
    Kind m_kind = Kind::LocalCopy;

private:
    QString local(bool onInstrument, const QString &name) const
    {
        return onInstrument ? m_simulator.local(QStringLiteral("/Internal/") + name)
                            : m_directory->filePath(name);
    }
};
