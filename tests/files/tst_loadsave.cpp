#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <dialogs/QvexMessageBox.h>
#include <files/FwLoadSaveDialog.h>

#include <functional>
#include <memory>

#include "GuardedTest.h"
#include "Link.h"
#include "LoadSaveBench.h"
#include "LocalFiles.h"
#include "SimulatorProcess.h"

using namespace Qt::Literals::StringLiterals;

using Mode = FwLoadSaveDialog::Mode;
using Place = FwLoadSaveDialog::Place;

namespace {

constexpr int tickX = Bench::tickX;
constexpr int nameX = Bench::nameX;

/// Taps the button of the box or question in front that reads @p text.
void answer(const QString &text)
{
    QTRY_VERIFY(QvexDialog::activeDialog());
    for (auto *button : QvexDialog::activeDialog()->findChildren<QAbstractButton *>()) {
        if (button->text().remove(u'&') == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable(u"no button "_s + text));
}

} // namespace

class tst_loadsave : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void loadsTheTappedFile();
    void opensFoldersByTapAndKeys();
    void sortsAndFiltersWhatIsListed();
    void rowsThatComeAboveMoveNothing();
    void hostileNamesStayInTheirLine();
    void listsOnlyFilesOfAnApplicationOnDemand();
    void selectsSeveralByTapsOnly();
    void dragScrollsAndSelectsNothing();
    void savesUnderNamesThatCanBe_data();
    void savesUnderNamesThatCanBe();
    void asksBeforeItOverwrites();
    void asksBeforeItDeletes();
    void makesAndRenamesInPlace();
    void pastesWhatWasPickedUp();
    void followsMedia();
    void carriesBothWays();
    void asksAboutConflictsOnce();
    void closingWhileCopyingCancels();
    void mayGoAtAnyMoment_data();
    void mayGoAtAnyMoment();
    void waitsForNoController();
    void leavesAFolderThatIsGone();
    void saysThatTheLinkIsLostAndRecovers();
    void fitsTheScreen_data();
    void fitsTheScreen();

private:
    std::unique_ptr<SimulatorProcess> m_simulator;
    std::unique_ptr<Link> m_link;
};

void tst_loadsave::initTestCase()
{
    m_simulator = std::make_unique<SimulatorProcess>();
    writeFile(m_simulator->local(u"/Internal/remote.trc"_s), "from the instrument");
    m_simulator->start();
    m_link = std::make_unique<Link>();
    QVERIFY(m_link->connectTo(m_simulator->port()));
}

void tst_loadsave::cleanupTestCase()
{
    m_link.reset();
    m_simulator.reset();
}

void tst_loadsave::loadsTheTappedFile()
{
    Bench bench(Mode::Load);
    bench.open();
    const QSignalSpy chosen(bench.dialog, &FwLoadSaveDialog::filesChosen);
    auto *open = bench.part<QAbstractButton>(u"CommitButton"_s);
    QVERIFY(!open->isEnabled());
    bench.tapRow(u"deep"_s, tickX);
    QVERIFY(!open->isEnabled()); // a folder can't be loaded
    bench.tapRow(u"b9.trc"_s);
    QVERIFY(open->isEnabled());
    bench.tap(u"CommitButton"_s);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen[0][1].toStringList(), QStringList {bench.local(u"b9.trc"_s)});
    QCOMPARE(bench.dialog->selectedFiles(), chosen[0][1].toStringList());
    QCOMPARE(bench.dialog->result(), int(QDialog::Accepted));
}

void tst_loadsave::opensFoldersByTapAndKeys()
{
    Bench bench(Mode::Load);
    bench.open();
    bench.tapRow(u"deep"_s);
    QCOMPARE(bench.dialog->folder(), bench.local(u"deep"_s));
    QTRY_COMPARE(bench.names(), QStringList {u"inner.trc"_s});
    bench.key(Qt::Key_Backspace);
    QCOMPARE(bench.dialog->folder(), bench.local());
    QCOMPARE(bench.list()->currentIndex(), bench.row(u"deep"_s)); // where one came from
    bench.key(Qt::Key_Return);
    QCOMPARE(bench.dialog->folder(), bench.local(u"deep"_s));
    bench.tap(u"Crumb_"_s + bench.local());
    QCOMPARE(bench.dialog->folder(), bench.local());
    bench.key(Qt::Key_Escape);
    QVERIFY(!bench.dialog->isRunning());
}

void tst_loadsave::sortsAndFiltersWhatIsListed()
{
    Bench bench(Mode::Load);
    bench.dialog->setNameFilters({u"Traces (*.trc)"_s, u"All (*)"_s});
    writeFile(bench.local(u"b1.trc"_s), QByteArray(5000, 'x'));
    bench.open();
    QTRY_COMPARE(bench.names(), QStringList({u"deep"_s, u"b1.trc"_s, u"b9.trc"_s, u"b10.trc"_s}));
    QHeaderView *header = bench.list()->header();
    const QPoint size(header->sectionViewportPosition(QvexFileModel::SizeColumn) + 40, 24);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, size);
    QCOMPARE(bench.names().constFirst(), u"deep"_s);
    const QString first = bench.names().value(1);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, size);
    QCOMPARE(bench.names().constFirst(), u"deep"_s); // folders stay on top
    QVERIFY(first != bench.names().value(1));
    QTest::keyClicks(bench.part<QLineEdit>(u"SearchEdit"_s), u"B1"_s);
    QCOMPARE(bench.names().size(), 2);
    QVERIFY(!bench.names().contains(u"b9.trc"_s));
}

void tst_loadsave::rowsThatComeAboveMoveNothing()
{
    Bench bench(Mode::Load);
    for (int i = 0; i < 80; ++i) {
        writeFile(bench.local(u"many%1.trc"_s.arg(i)), {});
    }
    bench.open();
    QTRY_VERIFY(bench.names().size() > 80);
    bench.tapRow(u"many40.trc"_s);
    const QPersistentModelIndex first = bench.list()->indexAt({nameX, 0});
    QVERIFY(first.row() > 0);
    const int before = bench.list()->visualRect(first).top();
    for (int i = 0; i < 40; ++i) { // in more places than are told one by one
        writeFile(bench.local(u"many%1a.trc"_s.arg(i)), {});
    }
    QVERIFY(QFile::remove(bench.local(u"b9.trc"_s)));
    QTRY_VERIFY(bench.row(u"many0a.trc"_s).isValid() && !bench.row(u"b9.trc"_s).isValid());
    QTRY_COMPARE(bench.list()->visualRect(first).top(), before);
    QVERIFY(bench.list()->selectionModel()->isSelected(bench.row(u"many40.trc"_s)));
}

void tst_loadsave::hostileNamesStayInTheirLine()
{
    Bench bench(Mode::Load);
    const QString name = u"a\nb\u202Ecrt.exe"_s;
    writeFile(bench.local(name), {});
    bench.open(name);
    bench.tapRow(name);
    bench.key(Qt::Key_Delete);
    QTRY_VERIFY(QvexDialog::activeDialog() != bench.dialog);
    const auto *box = qobject_cast<QvexMessageBox *>(QvexDialog::activeDialog());
    QCOMPARE(box->detailedText(), u"a\u240Ab\uFFFD202Ecrt.exe"_s);
    answer(u"Cancel"_s);
}

void tst_loadsave::listsOnlyFilesOfAnApplicationOnDemand()
{
    Bench bench(Mode::Load);
    const QByteArray head =
        "<?xml version=\"1.0\"?>\n<!DOCTYPE VEX>\n<Vex>\n<AppType>%</AppType>\n";
    writeFile(bench.local(u"own.set"_s), QByteArray(head).replace('%', "Scope"));
    writeFile(bench.local(u"other.set"_s), QByteArray(head).replace('%', "Meter"));
    bench.dialog->setVexFilters({}, {u"set"_s});
    bench.dialog->setHeadFilter(u"Scope"_s, {});
    bench.open(u"own.set"_s);
    QTRY_VERIFY(bench.row(u"own.set"_s).isValid() && !bench.row(u"other.set"_s).isValid());
    bench.tap(u"HeadButton"_s);
    QTRY_VERIFY(bench.row(u"other.set"_s).isValid());
}

void tst_loadsave::selectsSeveralByTapsOnly()
{
    Bench bench(Mode::Load);
    bench.dialog->setMultiple(true);
    bench.open();
    bench.tapRow(u"b9.trc"_s);
    bench.tapRow(u"b10.trc"_s, tickX);
    bench.tapRow(u"notes.txt"_s);
    bench.tapRow(u"notes.txt"_s); // taken back
    bench.tap(u"CommitButton"_s);
    QCOMPARE(bench.dialog->selectedFiles(),
             QStringList({bench.local(u"b9.trc"_s), bench.local(u"b10.trc"_s)}));
}

void tst_loadsave::dragScrollsAndSelectsNothing()
{
    Bench bench(Mode::Load);
    for (int i = 0; i < 40; ++i) {
        writeFile(bench.local(u"many%1.trc"_s.arg(i)), {});
    }
    bench.open();
    QTRY_VERIFY(bench.names().size() > 40);
    QWidget *viewport = bench.list()->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, {nameX, 350});
    for (int y = 340; y > 50; y -= 10) {
        QTest::mouseMove(viewport, {nameX, y}, 5);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, {nameX, 50});
    QVERIFY(bench.list()->selectionModel()->selectedRows().isEmpty());
    QTRY_VERIFY(bench.list()->indexAt({nameX, 10}).row() > 0);
}

void tst_loadsave::savesUnderNamesThatCanBe_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    QTest::newRow("suffix added") << u"new"_s << u"new.trc"_s;
    QTest::newRow("suffix kept") << u"new.xml"_s << u"new.xml"_s;
    QTest::newRow("empty") << u" "_s << QString();
    QTest::newRow("slash") << u"a/b"_s << QString();
    QTest::newRow("dots") << u".."_s << QString();
    QTest::newRow("too long") << QString(253, u'x') << QString();
    QTest::newRow("a folder's") << u"deep.d"_s << QString();
}

void tst_loadsave::savesUnderNamesThatCanBe()
{
    QFETCH(QString, typed);
    QFETCH(QString, saved);
    Bench bench(Mode::Save);
    writeFile(bench.local(u"deep.d/x"_s), {});
    bench.dialog->setDefaultSuffix(u".trc"_s);
    bench.open();
    auto *edit = bench.part<QLineEdit>(u"NameEdit"_s);
    QVERIFY(edit->hasFocus());
    QTest::keyClicks(edit, typed);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(bench.dialog->isRunning(), saved.isEmpty());
    QCOMPARE(bench.dialog->selectedFiles().value(0),
             saved.isEmpty() ? QString() : bench.local(saved));
}

void tst_loadsave::asksBeforeItOverwrites()
{
    Bench bench(Mode::Save);
    bench.open();
    bench.tapRow(u"b9.trc"_s);
    QCOMPARE(bench.dialog->fileName(), u"b9.trc"_s);
    bench.tap(u"CommitButton"_s);
    answer(u"Cancel"_s);
    QVERIFY(bench.dialog->isRunning());
    bench.tap(u"CommitButton"_s);
    answer(u"Overwrite"_s);
    QCOMPARE(bench.dialog->selectedFiles(), QStringList {bench.local(u"b9.trc"_s)});
}

void tst_loadsave::asksBeforeItDeletes()
{
    Bench bench(Mode::Load);
    bench.dialog->setMultiple(true);
    bench.open();
    bench.tapRow(u"b9.trc"_s);
    bench.tapRow(u"deep"_s, tickX);
    bench.key(Qt::Key_Delete);
    QTRY_VERIFY(QvexDialog::activeDialog() != bench.dialog);
    QCOMPARE(QvexDialog::activeDialog()->accessibleDescription(),
             u"Delete 1 file and 1 folder with everything in it from this computer?"_s);
    answer(u"Cancel"_s);
    QVERIFY(QFileInfo::exists(bench.local(u"deep/inner.trc"_s)));
    bench.key(Qt::Key_Delete);
    answer(u"Delete"_s);
    QTRY_COMPARE(bench.names(), QStringList({u"b10.trc"_s, u"notes.txt"_s}));
    QVERIFY(!QFileInfo::exists(bench.local(u"deep"_s)));
}

void tst_loadsave::makesAndRenamesInPlace()
{
    Bench bench(Mode::Load);
    bench.open();
    bench.tap(u"Action_new_folder"_s);
    QTRY_VERIFY(bench.part<QLineEdit>(u"RenameEdit"_s));
    auto *edit = bench.part<QLineEdit>(u"RenameEdit"_s);
    QTest::keyClicks(edit, u"fresh"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_VERIFY(QFileInfo(bench.local(u"fresh"_s)).isDir());
    QVERIFY(bench.dialog->isRunning()); // Return was the editor's
    QTRY_VERIFY(bench.row(u"fresh"_s).isValid());
}

void tst_loadsave::pastesWhatWasPickedUp()
{
    Bench bench(Mode::Load);
    bench.open();
    bench.tapRow(u"b9.trc"_s);
    bench.tap(u"Action_move"_s);
    bench.tapRow(u"deep"_s);
    QTRY_VERIFY(bench.row(u"inner.trc"_s).isValid());
    bench.tap(u"Action_paste"_s);
    QTRY_COMPARE(bench.names(), QStringList({u"b9.trc"_s, u"inner.trc"_s}));
    QVERIFY(!QFileInfo::exists(bench.local(u"b9.trc"_s)));
}

void tst_loadsave::followsMedia()
{
    Bench bench(Mode::Load);
    bench.open();
    const QString stick = bench.directory.filePath(u"media/MY STICK"_s);
    writeFile(stick + u"/on.trc"_s, "stick");
    const QByteArray mount = QFile::encodeName(stick).replace(' ', "\\040");
    writeFile(bench.directory.filePath(u"mounts"_s),
              "36 35 8:17 / " + mount + " rw - vfat /dev/sdb1 rw\n");
    QTRY_VERIFY(bench.part<QAbstractButton>(u"Place_"_s + stick));
    bench.tap(u"Place_"_s + stick);
    QTRY_COMPARE(bench.names(), QStringList {u"on.trc"_s});
    writeFile(bench.directory.filePath(u"mounts"_s), {});
    QTRY_COMPARE(bench.dialog->folder(), bench.local());
}

void tst_loadsave::carriesBothWays()
{
    Bench bench(Mode::Transfer, m_link->proxy());
    bench.dialog->setFolder(Place::Instrument, u"/Internal"_s);
    bench.open();
    QTRY_VERIFY(bench.row(u"remote.trc"_s).isValid());
    bench.tapRow(u"deep"_s, tickX, 1);
    bench.tapRow(u"b9.trc"_s, nameX, 1);
    bench.tap(u"CopyToLeft"_s);
    QTRY_VERIFY(bench.row(u"b9.trc"_s).isValid() && bench.row(u"deep"_s).isValid());
    QCOMPARE(contentsOf(m_simulator->local(u"/Internal/deep/inner.trc"_s)), "deep/inner.trc");
    bench.tapRow(u"remote.trc"_s);
    bench.tap(u"CopyToRight"_s);
    QTRY_COMPARE(contentsOf(bench.local(u"remote.trc"_s)), "from the instrument");
    QTRY_VERIFY(bench.row(u"remote.trc"_s, 1).isValid());
}

void tst_loadsave::asksAboutConflictsOnce()
{
    const QString folder = m_simulator->local(u"/Internal/conflicts/"_s);
    writeFile(folder + u"b9.trc"_s, "old");
    writeFile(folder + u"b10.trc"_s, "old");
    Bench bench(Mode::Transfer, m_link->proxy());
    bench.dialog->setFolder(Place::Instrument, u"/Internal/conflicts"_s);
    bench.open();
    bench.tapRow(u"b9.trc"_s, nameX, 1);
    bench.tapRow(u"b10.trc"_s, nameX, 1);
    bench.tap(u"CopyToLeft"_s);
    QTRY_COMPARE(QvexDialog::activeDialog()->objectName(), u"ConflictDialog"_s);
    auto *forAll = QvexDialog::activeDialog()->findChild<QAbstractButton *>(u"ConflictForAll"_s);
    QTest::mouseClick(forAll, Qt::LeftButton, {}, {20, forAll->height() / 2});
    QVERIFY(forAll->isChecked());
    answer(u"Overwrite"_s);
    QTRY_COMPARE(contentsOf(folder + u"b9.trc"_s), "b9.trc");
    QTRY_COMPARE(contentsOf(folder + u"b10.trc"_s), "b10.trc");
}

void tst_loadsave::closingWhileCopyingCancels()
{
    const QString folder = m_simulator->local(u"/Internal/conflicts/"_s);
    writeFile(folder + u"b9.trc"_s, "old");
    Bench bench(Mode::Transfer, m_link->proxy());
    bench.dialog->setFolder(Place::Instrument, u"/Internal/conflicts"_s);
    bench.open();
    bench.tapRow(u"b9.trc"_s, nameX, 1);
    bench.tap(u"CopyToLeft"_s); // waits for an answer from here on
    bench.dialog->closeDialog();
    QVERIFY(bench.dialog->isRunning());
    QTRY_COMPARE(QvexDialog::activeDialog()->objectName(), u"ConflictDialog"_s);
    delete bench.dialog; // the transfer's end must not wait for the person
    QCOMPARE(contentsOf(folder + u"b9.trc"_s), "old");
}

void tst_loadsave::mayGoAtAnyMoment_data()
{
    using Act = std::function<void(Bench &)>;
    QTest::addColumn<Act>("act");
    QTest::newRow("listing") << Act(
        [](Bench &bench) { bench.dialog->setFolder(Place::Instrument, u"/Internal"_s); });
    QTest::newRow("overwrite question") << Act([](Bench &bench) { bench.tap(u"CommitButton"_s); });
    QTest::newRow("delete question") << Act([](Bench &bench) { bench.key(Qt::Key_Delete); });
    QTest::newRow("renaming") << Act([](Bench &bench) { bench.key(Qt::Key_F2); });
    QTest::newRow("copying") << Act([](Bench &bench) {
        bench.tap(u"Action_copy"_s);
        bench.tapRow(u"deep"_s);
        bench.tap(u"Action_paste"_s);
    });
    QTest::newRow("chosen") << Act([](Bench &bench) {
        connect(bench.dialog, &FwLoadSaveDialog::filesChosen, bench.dialog,
                [&bench] { delete std::exchange(bench.dialog, nullptr); });
        bench.part<QLineEdit>(u"NameEdit"_s)->setText(u"new"_s);
        bench.tap(u"CommitButton"_s);
    });
}

void tst_loadsave::mayGoAtAnyMoment()
{
    QFETCH(std::function<void(Bench &)>, act);
    Bench bench(Mode::Save, m_link->proxy());
    bench.open();
    bench.tapRow(u"b9.trc"_s);
    act(bench);
    delete bench.dialog;
    QTest::qWait(20); // for what was under way to be told to nobody
    QVERIFY(!QvexDialog::activeDialog());
}

void tst_loadsave::waitsForNoController()
{
    Bench bench(Mode::Load, m_link->proxy());
    bench.dialog->setFolder(Place::Instrument, u"/Internal"_s);
    bench.open(u"remote.trc"_s);
    const auto heldFrozen = [this](const std::function<void()> &act) {
        m_simulator->freeze();
        QElapsedTimer timer;
        timer.start();
        act();
        QTest::qWait(50);
        return timer.elapsed() - 50;
    };
    QVERIFY(heldFrozen([&] { bench.tap(u"Action_new_folder"_s); }) < 100);
    bench.tap(u"Action_new_folder"_s); // refused: one is being made
    m_simulator->thaw();
    QTRY_VERIFY(bench.part<QLineEdit>(u"RenameEdit"_s));
    auto *edit = bench.part<QLineEdit>(u"RenameEdit"_s);
    QTest::keyClicks(edit, u"fresh"_s);
    QVERIFY(heldFrozen([&] { QTest::keyClick(edit, Qt::Key_Return); }) < 100);
    QVERIFY(!bench.row(u"fresh"_s).isValid());
    m_simulator->thaw();
    QTRY_VERIFY(bench.row(u"fresh"_s).isValid());
    QVERIFY(QFileInfo(m_simulator->local(u"/Internal/fresh"_s)).isDir());
    QVERIFY(bench.names().filter(u"New Folder"_s).isEmpty());
    QVERIFY(heldFrozen([&] {
                bench.key(Qt::Key_F5);
                bench.tap(u"Action_new_folder"_s);
                delete bench.dialog;
            })
            < 100);
    m_simulator->thaw();
}

void tst_loadsave::leavesAFolderThatIsGone()
{
    const QString top = m_simulator->local(u"/Internal/shown"_s);
    writeFile(top + u"/far/below/a.trc"_s, {});
    Bench bench(Mode::Load, m_link->proxy());
    bench.dialog->setFolder(Place::Instrument, u"/Internal/shown/far/below"_s);
    bench.open(u"a.trc"_s);
    QVERIFY(QDir(top + u"/far"_s).removeRecursively());
    bench.tap(u"Action_refresh"_s);
    QTRY_COMPARE(bench.dialog->folder(), u"/Internal/shown"_s);
    QCOMPARE(bench.part<QWidget>(u"StatusStrip"_s)->findChild<QLabel *>()->text(),
             u"The folder \"below\" is gone."_s);
}

void tst_loadsave::saysThatTheLinkIsLostAndRecovers()
{
    Bench bench(Mode::Transfer, m_link->proxy());
    bench.dialog->setFolder(Place::Instrument, u"/Internal"_s);
    bench.open();
    QTRY_VERIFY(bench.row(u"remote.trc"_s).isValid());
    m_simulator->kill();
    bench.tap(u"Action_refresh"_s);
    auto *notice = bench.part<QLabel>(u"NoticeText"_s);
    QTRY_VERIFY(notice->isVisible());
    QCOMPARE(notice->text(), u"The link to the instrument is lost"_s);
    bench.tapRow(u"deep"_s, nameX, 1); // the local side goes on
    QTRY_COMPARE(bench.names(1), QStringList {u"inner.trc"_s});
    writeFile(m_simulator->local(u"/Internal/later.trc"_s), {});
    m_simulator->start();
    bench.tap(u"NoticeButton"_s);
    QTRY_VERIFY(!notice->isVisible());
    QTRY_VERIFY(bench.row(u"later.trc"_s).isValid());
}

void tst_loadsave::fitsTheScreen_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QSize>("size");
    const std::pair<const char *, Mode> modes[] {
        {"load", Mode::Load}, {"save", Mode::Save}, {"transfer", Mode::Transfer}};
    for (const auto &[name, mode] : modes) {
        for (const QSize size : {QSize(800, 480), QSize(1280, 800), QSize(3840, 2160)}) {
            QTest::addRow("%s %d", name, size.width()) << mode << size;
        }
    }
}

void tst_loadsave::fitsTheScreen()
{
    QFETCH(Mode, mode);
    QFETCH(QSize, size);
    Bench bench(mode, m_link->proxy(), size);
    bench.dialog->setNameFilters({u"Traces of all kinds (*.trc)"_s, u"All (*)"_s});
    bench.open();
    QVERIFY(bench.window.rect().contains(
        QRect(bench.dialog->mapTo(&bench.window, QPoint()), bench.dialog->size())));
    for (const auto *button : bench.dialog->findChildren<QAbstractButton *>()) {
        if (!button->isVisible() || button->size().isEmpty()
            || qobject_cast<QLineEdit *>(button->parent())) {
            continue; // the cross in a search field helps a mouse
        }
        const QString name = button->objectName();
        QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(name));
        QVERIFY2(button->width() >= 48 && button->height() >= 48, qPrintable(name));
        QCOMPARE(button->visibleRegion().boundingRect().size(), button->size());
    }
}

QTEST_MAIN(tst_loadsave)
#include "tst_loadsave.moc"
