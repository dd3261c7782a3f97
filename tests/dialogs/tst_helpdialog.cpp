#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <dialogs/QvextHelpDialog.h>

#include "GuardedTest.h"
#include "Screen.h"

using namespace Qt::StringLiterals;

namespace {

void write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}

} // namespace

class TestHelpDialog : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsOrSaysWhyNot_data();
    void showsOrSaysWhyNot();
    void goesBackAndForth();
    void fingerScrolls();
    void opensAboveItsDialog();

private:
    QTemporaryDir m_directory;
};

void TestHelpDialog::initTestCase()
{
    const QString path = m_directory.path();
    write(path + u"/first.html"_s,
          "<h1>First</h1><a href='second.md'>next</a>"
          "<img src='http://127.0.0.1/picture.png'>"
          "<link rel='stylesheet' href='//127.0.0.1/style.css'>");
    write(path + u"/second.md"_s, "# Second\n\n[gone](third.md)");
    write(path + u"/long.html"_s, QByteArray("<p><a href='second.md'>link</a></p>").repeated(200));
    write(path + u"/empty.html"_s, " \n");
    write(path + u"/a name#1.html"_s, "Odd name");
}

void TestHelpDialog::showsOrSaysWhyNot_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("shown");
    const QString path = m_directory.path();
    const QString missing = u"The help page is missing, or can not be read."_s;
    const QString remote = u"Only pages on this instrument can be shown here."_s;
    QTest::newRow("HTML") << path + u"/first.html"_s << u"First"_s;
    QTest::newRow("Markdown, by URL") << u"file://"_s + path + u"/second.md"_s << u"Second"_s;
    QTest::newRow("odd name") << QUrl::fromLocalFile(path + u"/a name#1.html"_s).toString()
                              << u"Odd name"_s;
    QTest::newRow("nothing") << QString() << missing;
    QTest::newRow("missing") << path + u"/third.html"_s << missing;
    QTest::newRow("missing Markdown") << path + u"/third.md"_s << missing;
    QTest::newRow("missing resource") << u":/help/none.html"_s << missing;
    QTest::newRow("empty") << path + u"/empty.html"_s << missing;
    QTest::newRow("directory") << path << missing;
    QTest::newRow("device") << u"/dev/zero"_s << missing;
    QTest::newRow("web") << u"http://127.0.0.1/<b>.html"_s << remote;
    QTest::newRow("web, Markdown") << u"https://127.0.0.1/x.md"_s << remote;
    QTest::newRow("file on a server") << u"file://server/share/first.html"_s << remote;
    QTest::newRow("script") << u"javascript:alert(1)"_s << remote;
}

void TestHelpDialog::showsOrSaysWhyNot()
{
    QFETCH(const QString, url);
    QFETCH(const QString, shown);
    const QvextHelpDialog help(url);
    const QString text = help.findChild<QTextBrowser *>()->toPlainText();
    QVERIFY2(text.contains(shown), qPrintable(text));
    QVERIFY(!text.contains(u"</"_s));
}

void TestHelpDialog::goesBackAndForth()
{
    Screen screen;
    QvextHelpDialog help(m_directory.filePath(u"first.html"_s));
    help.setParent(&screen);
    help.open();
    auto *browser = help.findChild<QTextBrowser *>();
    auto *back = help.findChild<QPushButton *>(u"HelpBack"_s);
    auto *forward = help.findChild<QPushButton *>(u"HelpForward"_s);
    auto *home = help.findChild<QPushButton *>(u"HelpHome"_s);
    QVERIFY(!back->isEnabled() && !forward->isEnabled());
    const auto follow = [&](const QString &link) {
        browser->find(link);
        const QPoint at = browser->cursorRect().center() - QPoint(5, 0);
        browser->moveCursor(QTextCursor::Start);
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, at);
    };
    const auto title = [browser] { return browser->toPlainText().section(u'\n', 0, 0); };
    follow(u"next"_s);
    QCOMPARE(title(), u"Second"_s);
    follow(u"gone"_s);
    QCOMPARE(title(), u"This page can not be shown"_s);
    tapThrough(back);
    QCOMPARE(title(), u"Second"_s);
    tapThrough(back);
    QCOMPARE(title(), u"First"_s);
    tapThrough(forward);
    QCOMPARE(title(), u"Second"_s);
    tapThrough(home);
    QCOMPARE(title(), u"First"_s);
    help.reject();
}

void TestHelpDialog::fingerScrolls()
{
    Screen screen;
    QvextHelpDialog help(m_directory.filePath(u"long.html"_s));
    help.setParent(&screen);
    help.open();
    auto *browser = help.findChild<QTextBrowser *>();
    QWindow *window = screen.windowHandle();
    const QPoint at = browser->viewport()->mapTo(&screen, QPoint(20, 300));
    QTest::mousePress(window, Qt::LeftButton, {}, at);
    for (int y = 0; y <= 200; y += 20) {
        QTest::mouseMove(window, at - QPoint(0, y), 10);
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, at - QPoint(0, 200));
    QTRY_VERIFY(browser->verticalScrollBar()->value() > 100);
    QCOMPARE(browser->source().fileName(), u"long.html"_s);
    help.reject();
}

void TestHelpDialog::opensAboveItsDialog()
{
    Screen screen;
    auto *dialog = new QvexDialog(&screen);
    dialog->setHelpUrl(m_directory.filePath(u"second.md"_s));
    dialog->open();
    QTest::keyClick(dialog, Qt::Key_F1);
    const QPointer<QvexDialog> help = QvexDialog::activeDialog();
    QVERIFY(qobject_cast<QvextHelpDialog *>(help));
    QTest::keyClick(help, Qt::Key_Escape);
    QCOMPARE(QvexDialog::activeDialog(), dialog);
    QTRY_VERIFY(!help);
    QvexDialog::setRemoteLock(true);
    dialog->helpDialog();
    QvexDialog::setRemoteLock(false);
    QCOMPARE(QvexDialog::activeDialog(), dialog);
    QTRY_VERIFY(dialog->findChildren<QvextHelpDialog *>().isEmpty());
    dialog->helpDialog();
    delete dialog;
    QVERIFY(!QvexDialog::activeDialog());
}

QTEST_MAIN(TestHelpDialog)
#include "tst_helpdialog.moc"
