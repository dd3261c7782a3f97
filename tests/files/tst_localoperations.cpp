#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <optional>

#include "GuardedTest.h"
#include "LocalFiles.h"
#include "files/LocalHelperThread.h"
#include "files/QvexFileModel.h"
#include "files/TemporaryName.h"

using namespace Qt::StringLiterals;
using Operation = LocalHelperThread::Operation;

Q_DECLARE_METATYPE(LocalHelperThread::Operation)

namespace {

/// Everything below a folder, with what is in the files; hidden things too.
QStringList treeOf(const QString &folder)
{
    QStringList entries;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QFileInfo entry(walk.next());
        const QString what = entry.isSymLink() ? u"->"_s + QFile::symLinkTarget(entry.filePath())
            : entry.isDir()                    ? u"/"_s
            : entry.isFile() ? QString::fromLatin1(contentsOf(entry.filePath()).left(20))
                             : u"?"_s;
        entries.append(entry.filePath().sliced(folder.size()) + u' ' + what);
    }
    entries.sort();
    return entries;
}

/// Lets no file of this process grow beyond a size.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
    {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    rlimit m_before {};
};

/// A small file system of its own, where the test may mount one.
class SmallDisk
{
public:
    SmallDisk()
        : m_isMounted(::mount("tmpfs", path(), "tmpfs", 0, "size=64k") == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_isMounted) {
            ::umount2(path(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_isMounted; }
    QString folder() const { return m_place.path(); }

private:
    const char *path()
    {
        m_path = QFile::encodeName(m_place.path());
        return m_path.constData();
    }

    QTemporaryDir m_place;
    QByteArray m_path;
    const bool m_isMounted;
};

} // namespace

class LocalOperationsTest : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void copyIsWholeWithLinksTimesAndPermissions();
    void moveAcrossFileSystems();
    void removesLinksButNotWhatTheyLeadTo();
    void failureLeavesBothSidesAsTheyWere_data();
    void failureLeavesBothSidesAsTheyWere();
    void fullTarget_data();
    void fullTarget();
    void cancelledAtAnyTimeLeavesWholeEntriesOnly_data();
    void cancelledAtAnyTimeLeavesWholeEntriesOnly();
    void endsAtTheFirstFailure();
    void removesWhatAKilledProcessLeft();

private:
    QString path(const QString &name) const { return m_folder->path() + u'/' + name; }
    /// @return the result, or -1 when there was not exactly one completion.
    long run(Operation operation, const QStringList &sources, const QString &target = QString());

    std::optional<QTemporaryDir> m_folder;
    QString m_stoppedAt;
};

void LocalOperationsTest::init()
{
    GuardedTest::init();
    m_folder.emplace();
    writeFile(path(u"from/tree/one"_s), "1");
    writeFile(path(u"from/tree/deep/two"_s), QByteArray(200'000, '2'));
    writeFile(path(u"from/file"_s), "f");
    writeFile(path(u"outside/kept"_s), "k");
    QFile::link(path(u"outside"_s), path(u"from/tree/link"_s));
    QFile::link(u"/nowhere"_s, path(u"from/tree/dangling"_s));
    QVERIFY(QDir().mkpath(path(u"to"_s)));
}

long LocalOperationsTest::run(Operation operation, const QStringList &sources,
                              const QString &target)
{
    LocalHelperThread thread;
    QSignalSpy removed(&thread, &LocalHelperThread::removeComplete);
    QSignalSpy copied(&thread, &LocalHelperThread::copyComplete);
    QSignalSpy moved(&thread, &LocalHelperThread::moveComplete);
    thread.setTask(operation, sources, target);
    thread.start();
    thread.wait();
    const QList<QVariantList> all = QList<QVariantList>(removed) + copied + moved;
    const QSignalSpy &own = operation == Operation::Remove ? removed
        : operation == Operation::Copy                     ? copied
                                                           : moved;
    if (all.size() != 1 || own.size() != 1) {
        return -1;
    }
    m_stoppedAt = all.at(0).at(1).toString();
    return all.at(0).at(0).value<long>();
}

void LocalOperationsTest::copyIsWholeWithLinksTimesAndPermissions()
{
    const QString script = path(u"from/tree/one"_s);
    const auto permissions = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadUser | QFile::ExeUser;
    QFile file(script);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000), QFile::FileModificationTime);
    file.close();
    QVERIFY(QFile::setPermissions(script, permissions));
    QVERIFY(QFile::setPermissions(path(u"from/tree/deep"_s), permissions));

    QCOMPARE(run(Operation::Copy, {path(u"from/tree/"_s)}, path(u"to"_s)), 0);
    QCOMPARE(m_stoppedAt, QString());
    QCOMPARE(treeOf(path(u"to/tree"_s)), treeOf(path(u"from/tree"_s)));
    QCOMPARE(QFile(path(u"to/tree/deep/two"_s)).size(), 200'000);
    const QFileInfo copy(path(u"to/tree/one"_s));
    QCOMPARE(copy.lastModified().toSecsSinceEpoch(), 1'000'000'000);
    QCOMPARE(copy.permissions(), QFile::permissions(script));
    QCOMPARE(QFile::permissions(path(u"to/tree/deep"_s)),
             QFile::permissions(path(u"from/tree/deep"_s)));
}

void LocalOperationsTest::moveAcrossFileSystems()
{
    const QTemporaryDir other(u"/dev/shm/vex-XXXXXX"_s);
    struct stat here;
    struct stat there;
    if (!other.isValid() || ::stat(qPrintable(m_folder->path()), &here) != 0
        || ::stat(qPrintable(other.path()), &there) != 0 || here.st_dev == there.st_dev) {
        QSKIP("there is no second file system");
    }
    const QStringList tree = treeOf(path(u"from/tree"_s));
    QCOMPARE(run(Operation::Move, {path(u"from/tree"_s), path(u"from/file"_s)}, other.path()), 0);
    QCOMPARE(treeOf(other.filePath(u"tree"_s)), tree);
    QCOMPARE(treeOf(path(u"from"_s)), QStringList());
    QCOMPARE(run(Operation::Move, {other.filePath(u"file"_s)}, path(u"from"_s)), 0);
    QCOMPARE(treeOf(path(u"from"_s)), QStringList(u"/file f"_s));
}

void LocalOperationsTest::removesLinksButNotWhatTheyLeadTo()
{
    QFile::link(path(u"outside"_s), path(u"link"_s));
    QCOMPARE(run(Operation::Remove, {path(u"from/tree"_s), path(u"link"_s) + u'/'}), 0);
    QCOMPARE(treeOf(path(u"from"_s)), QStringList(u"/file f"_s));
    QCOMPARE(treeOf(path(u"outside"_s)), QStringList(u"/kept k"_s));
    QVERIFY(!QFileInfo(path(u"link"_s)).isSymLink());
}

void LocalOperationsTest::failureLeavesBothSidesAsTheyWere_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("result");

    const auto both = [](const char *name, const char *source, const char *target, int result) {
        const QString from = QString::fromLatin1(source);
        const QString to = QString::fromLatin1(target);
        QTest::addRow("copy: %s", name) << Operation::Copy << from << to << result;
        QTest::addRow("move: %s", name) << Operation::Move << from << to << result;
    };
    both("source is gone", "from/none", "to", ENOENT);
    both("name is too long", qPrintable(u"from/"_s + QString(300, u'x')), "to", ENAMETOOLONG);
    both("target is gone", "from/file", "none", ENOENT);
    both("target is a file", "from/tree", "from/file", ENOTDIR);
    both("name is taken", "from/file", "taken", EEXIST);
    both("name is taken by a link", "from/file", "linked", EEXIST);
    both("onto itself", "from/tree", "from", EEXIST);
    both("into itself", "from/tree", "from/tree", EINVAL);
    both("far into itself", "from/tree", "from/tree/deep", EINVAL);
    both("into itself by a link", "from/tree", "into", EINVAL);
    QTest::newRow("copy: a pipe within") << Operation::Copy << u"pipes"_s << u"to"_s << EOPNOTSUPP;
    QTest::newRow("copy: target is read-only")
        << Operation::Copy << u"from/file"_s << u"/proc/1"_s << 0;
    QTest::newRow("remove: gone") << Operation::Remove << u"from/none"_s << u"to"_s << ENOENT;
    QTest::newRow("remove: root") << Operation::Remove << u"/"_s << u"to"_s << EINVAL;
}

void LocalOperationsTest::failureLeavesBothSidesAsTheyWere()
{
    QFETCH(Operation, operation);
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(int, result);
    writeFile(path(u"taken/file"_s), "t");
    writeFile(path(u"pipes/a"_s), "a");
    QVERIFY(QDir().mkpath(path(u"linked"_s)));
    QFile::link(u"/nowhere"_s, path(u"linked/file"_s));
    QFile::link(path(u"from/tree/deep"_s), path(u"into"_s));
    QCOMPARE(::mkfifo(qPrintable(path(u"pipes/z"_s)), 0600), 0);
    const QStringList before = treeOf(m_folder->path());

    const auto full = [&](const QString &name) {
        return name.startsWith(u'/') ? name : path(name);
    };
    const long got = run(operation, {full(source)}, full(target));
    QVERIFY2(result != 0 ? got == result : got > 0, qPrintable(QString::number(got)));
    QVERIFY(m_stoppedAt.startsWith(full(source)));
    QVERIFY(!LocalHelperThread::resultText(got).isEmpty());
    QCOMPARE(treeOf(m_folder->path()), before);
}

void LocalOperationsTest::fullTarget_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::newRow("copy") << Operation::Copy;
    QTest::newRow("move") << Operation::Move;
}

void LocalOperationsTest::fullTarget()
{
    QFETCH(Operation, operation);
    const QStringList before = treeOf(m_folder->path());
    {
        const SizeLimit limit(100'000);
        QCOMPARE(run(Operation::Copy, {path(u"from/tree"_s)}, path(u"to"_s)), EFBIG);
    }
    QCOMPARE(m_stoppedAt, path(u"from/tree/deep/two"_s));
    QCOMPARE(treeOf(m_folder->path()), before);

    const SmallDisk disk;
    if (!disk.isMounted()) {
        QSKIP("no file system can be mounted here");
    }
    QCOMPARE(run(operation, {path(u"from/tree"_s)}, disk.folder()), ENOSPC);
    QCOMPARE(treeOf(m_folder->path()), before);
    QCOMPARE(treeOf(disk.folder()), QStringList());
}

void LocalOperationsTest::cancelledAtAnyTimeLeavesWholeEntriesOnly_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::newRow("remove") << Operation::Remove;
    QTest::newRow("copy") << Operation::Copy;
    QTest::newRow("move to another file system") << Operation::Move;
}

void LocalOperationsTest::cancelledAtAnyTimeLeavesWholeEntriesOnly()
{
    QFETCH(Operation, operation);
    const QTemporaryDir target(u"/dev/shm/vex-XXXXXX"_s);
    const QStringList tree = treeOf(path(u"from/tree"_s));
    int cancelled = 0;
    for (int delay = 0; delay < 40; ++delay) {
        QVector<QString> sources;
        for (int copy = 0; copy < 5; ++copy) {
            sources.append(path(u"run%1/tree%2"_s.arg(delay).arg(copy)));
            writeFile(sources.last() + u"/big"_s, QByteArray(300'000, 'b'));
            writeFile(sources.last() + u"/small"_s, "s");
        }
        const QStringList whole = treeOf(sources.first());
        const QString place = target.filePath(QString::number(delay));
        QVERIFY(QDir().mkpath(place));

        LocalHelperThread thread;
        QSignalSpy moved(&thread, &LocalHelperThread::moveComplete);
        thread.setTask(operation, sources, place);
        thread.start();
        QThread::usleep(static_cast<unsigned long>(delay) * 50);
        thread.cancel();
        thread.wait();
        for (const QString &source : std::as_const(sources)) {
            const QStringList there = treeOf(place + u'/' + QFileInfo(source).fileName());
            const QStringList here = treeOf(source);
            QVERIFY(there.isEmpty() || there == whole);
            QVERIFY(operation != Operation::Copy || here == whole);
            QVERIFY(operation != Operation::Move || (here.isEmpty() != there.isEmpty()));
            cancelled += operation == Operation::Remove ? !here.isEmpty() : there.isEmpty();
        }
        QVERIFY(QDir(place)
                    .entryList(QDir::Hidden | QDir::AllEntries | QDir::NoDotAndDotDot)
                    .filter(u"vexpart"_s)
                    .isEmpty());
        QVERIFY(operation != Operation::Move || moved.size() == 1);
    }
    QVERIFY(cancelled > 0);
    QCOMPARE(treeOf(path(u"from/tree"_s)), tree);
}

void LocalOperationsTest::endsAtTheFirstFailure()
{
    QCOMPARE(run(Operation::Copy, {}, path(u"to"_s)), 0);
    const QStringList sources {path(u"from/file"_s), path(u"from/none"_s), path(u"from/tree"_s)};
    QCOMPARE(run(Operation::Move, sources, path(u"to"_s)), ENOENT);
    QCOMPARE(m_stoppedAt, path(u"from/none"_s));
    QCOMPARE(treeOf(path(u"to"_s)), QStringList(u"/file f"_s));
    QVERIFY(QFile::exists(path(u"from/tree/one"_s)));
}

void LocalOperationsTest::removesWhatAKilledProcessLeft()
{
    QProcess dead;
    dead.start(u"true"_s, {});
    QVERIFY(dead.waitForStarted());
    const QString deadId = QString::number(dead.processId());
    QVERIFY(dead.waitForFinished());
    const QString own = TemporaryName(u"tree"_s).part();
    const auto of = [this, &own](const QString &process) {
        const QString id = u"-%1-"_s.arg(QCoreApplication::applicationPid());
        return path(u"to/"_s + QString(own).replace(id, u"-%1-"_s.arg(process)));
    };
    const QString living = of(QString::number(::getppid()));
    const QString backup = of(deadId).replace(u".vexpart"_s, u".vexold"_s);
    for (const QString &each : {of(deadId), living, backup}) {
        writeFile(each + u"/deep/half"_s, "h");
    }
    QVERIFY(QFile::setPermissions(of(deadId) + u"/deep"_s, QFile::ReadOwner | QFile::ExeOwner));

    QCOMPARE(run(Operation::Copy, {path(u"from/file"_s)}, path(u"to"_s)), 0);
    QVERIFY(!QFileInfo::exists(of(deadId)));
    QVERIFY(QFileInfo::exists(living + u"/deep/half"_s));
    QVERIFY(QFileInfo::exists(backup + u"/deep/half"_s)); // whole, and maybe all that there is
}

QTEST_GUILESS_MAIN(LocalOperationsTest)

#include "tst_localoperations.moc"
