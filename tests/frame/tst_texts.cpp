#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

#include <dialogs/QvexMessageBox.h>
#include <dialogs/QvextHelpDialog.h>
#include <files/FwLoadSaveDialog.h>
#include <frame/AppMissionControlWidget.h>
#include <frame/ClientGUIBase.h>
#include <frame/VexTranslation.h>
#include <input/QvexNumpadDlg.h>

#include "GuardedTest.h"
#include "LocalFiles.h"
#include "PseudoLocale.h"

using namespace Qt::StringLiterals;

using Maker = std::function<QvexDialog *(QWidget *)>;

Q_DECLARE_METATYPE(Maker)

namespace {

constexpr int PatienceMs = 60'000;

QString listed(const QStringList &texts)
{
    return u'\n' + texts.join(u'\n');
}

/// Names of folders are not the library's texts.
QStringList withoutFolders(QStringList texts)
{
    texts.removeIf([](const QString &text) { return text.startsWith(u"Crumb_/"_s); });
    return texts;
}

/// A question with all that a message box can hold.
QvexDialog *messageBox(QWidget *parent)
{
    auto *box = new QvexMessageBox(parent);
    box->setStandardButtons(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    box->setDetailedText(u"[1]"_s);
    return box;
}

QvexDialog *help(QWidget *parent)
{
    auto *dialog = new QvextHelpDialog(u"about:blank"_s);
    dialog->setParent(parent);
    return dialog;
}

} // namespace

/** What the library's windows say, in languages that it has and in one that nobody speaks. */
class TestTexts : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyTextIsTranslatedAndFits_data();
    void everyTextIsTranslatedAndFits();
    void frameIsTranslatedAndFits();
    void languageChangesAtRunTime();
    void unknownLanguageIsEnglish();
    void everyLanguageHasEveryText_data();
    void everyLanguageHasEveryText();

private:
    std::unique_ptr<QWidget> m_window;
};

void TestTexts::init()
{
    GuardedTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setObjectName(u"FwMainWindow"_s);
    m_window->resize(1280, 800);
    m_window->show();
}

void TestTexts::cleanup()
{
    m_window.reset();
    VexTranslation::install(u"en"_s);
    GuardedTest::cleanup();
}

void TestTexts::everyTextIsTranslatedAndFits_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("message box") << Maker(messageBox);
    QTest::newRow("numpad") << Maker([](QWidget *parent) { return new QvexNumpadDlg(parent); });
    QTest::newRow("password") << Maker(
        [](QWidget *parent) { return new QvexNumpadDlg(parent, QvexNumpadDlg::Password); });
    QTest::newRow("help") << Maker(help);
    using Mode = FwLoadSaveDialog::Mode;
    for (const auto &[name, mode] : {std::pair("load", Mode::Load), std::pair("save", Mode::Save),
                                     std::pair("transfer", Mode::Transfer)}) {
        QTest::newRow(name) << Maker(
            [mode = mode](QWidget *parent) { return new FwLoadSaveDialog(mode, nullptr, parent); });
    }
}

void TestTexts::everyTextIsTranslatedAndFits()
{
    QFETCH(const Maker, make);
    QPointer<QvexDialog> dialog = make(m_window.get());
    dialog->open();
    // What is open already follows; what is made now is made in the language.
    const PseudoLocale pseudo;
    QTRY_COMPARE(listed(withoutFolders(PseudoLocale::untranslated(dialog))), listed({}));
    QTRY_COMPARE(listed(withoutFolders(PseudoLocale::clipped(dialog))), listed({}));
    QCOMPARE(listed(PseudoLocale::nameless(dialog)), listed({}));
    delete dialog;
    dialog = make(m_window.get());
    dialog->open();
    QCOMPARE(listed(withoutFolders(PseudoLocale::untranslated(dialog))), listed({}));
    delete dialog;
}

void TestTexts::frameIsTranslatedAndFits()
{
    QVector<QString> arguments;
    ClientGUIBase frame(arguments);
    for (int window = 0; window < 3; ++window) {
        frame.registerApplicationWindow(new QWidget);
    }
    frame.setApplicationName(u"[name]"_s);
    frame.resize(800, 480);
    frame.show();
    auto *panel = frame.findChild<AppMissionControlWidget *>();
    panel->setDuration(0);
    panel->expand();
    const PseudoLocale pseudo;
    QTRY_COMPARE(listed(PseudoLocale::untranslated(&frame)), listed({}));
    QTRY_COMPARE(listed(PseudoLocale::clipped(&frame)), listed({}));
    QCOMPARE(listed(PseudoLocale::nameless(&frame)), listed({}));
}

void TestTexts::languageChangesAtRunTime()
{
    QvexMessageBox box(m_window.get());
    box.setDetailedText(u"details"_s);
    box.open();
    const auto *details = box.findChild<QPushButton *>(u"MsgDetailsButton"_s);
    const QString english = details->text();
    QVERIFY(VexTranslation::install(u"de_AT"_s));
    QTRY_VERIFY(details->text() != english);
    QVERIFY(VexTranslation::install(u"en"_s));
    QTRY_COMPARE(details->text(), english);
}

void TestTexts::unknownLanguageIsEnglish()
{
    QVERIFY(!VexTranslation::install(u"tlh"_s));
    QCOMPARE(QvexMessageBox::tr("Details"), u"Details"_s);
    QCOMPARE(VexTranslation::installed(), u"tlh"_s);
    // Whoever reads from right to left has the layout mirrored.
    QVERIFY(!VexTranslation::install(u"ar"_s));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(VexTranslation::install(u"ja"_s));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void TestTexts::everyLanguageHasEveryText_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder(QStringLiteral(VEX_TEST_I18N));
    const QStringList files = folder.entryList({u"*.ts"_s});
    QVERIFY(files.size() >= 10);
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
    }
}

void TestTexts::everyLanguageHasEveryText()
{
    QFETCH(const QString, file);
    // Brings a copy up to the sources of today, as the target update_translations does.
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(file).fileName());
    QVERIFY(QFile::copy(file, copy));
    QProcess update;
    update.start(QStringLiteral(VEX_TEST_LUPDATE),
                 {u"-silent"_s, u"-locations"_s, u"none"_s, u"-no-obsolete"_s,
                  QStringLiteral(VEX_TEST_SOURCES), u"-ts"_s, copy});
    QVERIFY(update.waitForFinished(PatienceMs));
    QCOMPARE(update.exitCode(), 0);

    const QByteArray text = contentsOf(copy);
    QVERIFY(text.count("<message") > 100);
    // The texts in the sources are English: only their plurals need a translation.
    if (!file.endsWith(u"_en.ts"_s)) {
        QCOMPARE(text.count("type=\"unfinished\""), 0);
    } else {
        QVERIFY(!text.contains("<numerusform></numerusform>"));
    }
}

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
