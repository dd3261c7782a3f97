#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include <new>

#include <dialogs/QvexMessageBox.h>
#include <input/QvexPasswordPopup.h>
#include <input/SecretText.h>

#include "../dialogs/Screen.h"
#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

/// A protected application, with a user who answers each prompt in the same way.
struct Bench
{
    explicit Bench(const QString &password = u"4711"_s)
        : popup(new QvexPasswordPopup(&screen))
        , typed(password)
    {
        popup->setLocalNormalPassword(u"4711"_s);
        popup->setLocalPasswordLevel(1);
    }

    bool test(bool removeRequested = false, bool ignoreRemote = false)
    {
        soon([this] { answer(); });
        const bool mayGoOn = popup->testAndRemoveProtectionPopup(removeRequested, ignoreRemote);
        QCoreApplication::processEvents();
        return mayGoOn;
    }

    void answer()
    {
        if (!popup || !popup->isRunning()) {
            return;
        }
        ++prompts;
        wasForced = box()->isChecked() && !box()->isEnabled();
        if (tick) {
            tap(box());
        }
        if (cancel) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            return;
        }
        QTest::keyClicks(QApplication::focusWidget(), typed);
        soon([this] { closeMessage(); });
        tap(popup->findChild<QPushButton *>(u"NumpadOk"_s));
    }

    void closeMessage()
    {
        if (auto *message = qobject_cast<QvexMessageBox *>(QvexDialog::activeDialog())) {
            ++messages;
            messageTitle = message->windowTitle();
            messageText = message->text();
            tap(message->button(QDialogButtonBox::Ok));
        }
    }

    QAbstractButton *box()
    {
        return popup->findChild<QAbstractButton *>(u"DisablePasswordProtection"_s);
    }
    QTimer *timer() { return popup->findChild<QTimer *>(u"hysteresisTimer"_s); }

    Screen screen;
    QPointer<QvexPasswordPopup> popup;
    QString typed;
    bool tick = false;
    bool cancel = false;
    bool wasForced = false;
    int prompts = 0;
    int messages = 0;
    QString messageTitle;
    QString messageText;
};

} // namespace

class TestPassword : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void asksOnlyWhereItMust_data();
    void asksOnlyWhereItMust();
    void answers_data();
    void answers();
    void remembersTheAnswer_data();
    void remembersTheAnswer();
    void beginsAnewEachTime();
    void isShared();
    void outlivesNothing();
    void refusesAPasswordThatNobodyCouldEnter();
    void overwritesSecrets();

private:
    QTimer m_rescue; ///< ends a dialog that a failed comparison has left running
};

void TestPassword::init()
{
    GuardedTest::init();
    m_rescue.callOnTimeout(qApp, &QvexDialog::cancellAllDialogBoxes);
    m_rescue.start(5000);
}

void TestPassword::asksOnlyWhereItMust_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("remote");
    QTest::addColumn<bool>("ignoreRemote");
    QTest::addColumn<int>("prompts");
    QTest::newRow("no protection") << 0 << false << false << 0;
    QTest::newRow("protection") << 2 << false << false << 1;
    QTest::newRow("remote control") << 2 << true << false << 0;
    QTest::newRow("remote control, ignored") << 2 << true << true << 1;
}

void TestPassword::asksOnlyWhereItMust()
{
    QFETCH(int, level);
    QFETCH(bool, remote);
    QFETCH(bool, ignoreRemote);
    Bench bench;
    bench.popup->setLocalPasswordLevel(level);
    bench.popup->setRcActive(remote);
    QVERIFY(bench.test(false, ignoreRemote));
    QTEST(bench.prompts, "prompts");
}

void TestPassword::answers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("tick");
    QTest::addColumn<bool>("removeRequested");
    QTest::addColumn<bool>("mayGoOn");
    QTest::addColumn<bool>("removes");
    QTest::newRow("right") << u"4711"_s << false << false << true << false;
    QTest::newRow("right, ticked") << u"4711"_s << true << false << true << true;
    // The box can't be unticked then.
    QTest::newRow("right, removal requested") << u"4711"_s << true << true << true << true;
    QTest::newRow("wrong") << u"4712"_s << false << false << false << false;
    QTest::newRow("wrong, ticked") << u"471"_s << true << false << false << false;
    QTest::newRow("wrong, removal requested") << u"47110"_s << false << true << false << false;
    QTest::newRow("nothing") << u""_s << false << false << false << false;
}

void TestPassword::answers()
{
    QFETCH(QString, typed);
    QFETCH(bool, tick);
    QFETCH(bool, removeRequested);
    QFETCH(bool, mayGoOn);
    QFETCH(bool, removes);
    Bench bench(typed);
    bench.tick = tick;
    const QSignalSpy spy(bench.popup, &QvexPasswordPopup::disableModProtection);
    QCOMPARE(bench.test(removeRequested), mayGoOn);
    QCOMPARE(bench.wasForced, removeRequested);
    QCOMPARE(bench.popup->getPassword(), typed);
    QCOMPARE(bench.popup->lineEditText(), QString());
    QCOMPARE(bench.popup->getRemoveProtection(), tick || removeRequested);
    QCOMPARE(spy.count(), int(removes));
    QCOMPARE(bench.popup->isInHysteresis(), !removes);
    QCOMPARE(bench.messages, int(!mayGoOn));
    if (!mayGoOn) {
        QCOMPARE(bench.messageTitle, u"Password Protection"_s);
        QCOMPARE(bench.messageText, u"Password Does Not Match.\nPlease Type Correct Password!"_s);
    }
    // Without protection nothing is asked any more.
    QCOMPARE(bench.test(), mayGoOn);
    QCOMPARE(bench.prompts, 1);
}

void TestPassword::remembersTheAnswer_data()
{
    QTest::addColumn<bool>("cancel");
    QTest::newRow("granted") << false;
    QTest::newRow("cancelled") << true;
}

void TestPassword::remembersTheAnswer()
{
    QFETCH(bool, cancel);
    Bench bench;
    bench.cancel = cancel;
    QCOMPARE(bench.test(), !cancel);
    QVERIFY(bench.timer()->remainingTime() > 500 && bench.timer()->remainingTime() <= 800);
    QCOMPARE(bench.test(), !cancel);
    QCOMPARE(bench.popup->getHysteresisReply(), !cancel);
    QCOMPARE(bench.prompts, 1);
    QCOMPARE(bench.messages, 0);
    bench.timer()->setInterval(10);
    QTRY_VERIFY(!bench.popup->isInHysteresis());
    QCOMPARE(bench.test(), !cancel);
    QCOMPARE(bench.prompts, 2);
    // A removal is always asked about.
    bench.test(true);
    QCOMPARE(bench.prompts, 3);
}

void TestPassword::beginsAnewEachTime()
{
    Bench bench;
    bench.cancel = true;
    bench.test(true);
    QVERIFY(bench.wasForced);
    bench.popup->setHysteresisReply(true);
    bench.timer()->setInterval(1);
    QTRY_VERIFY(!bench.popup->isInHysteresis());
    soon([&] {
        QVERIFY(bench.box()->isEnabled() && !bench.box()->isChecked());
        QCOMPARE(bench.popup->findChild<QLineEdit *>()->text(), QString());
        QVERIFY(!bench.popup->testAndRemoveProtectionPopup(true, false));
        QVERIFY(!bench.box()->isChecked());
        bench.popup->findChild<QAbstractButton *>(u"DisplayPassword"_s)->click();
        QTest::keyClicks(QApplication::focusWidget(), u"4711"_s);
        bench.popup->closeDialog();
    });
    QVERIFY(!bench.popup->testAndRemoveProtectionPopup(false, false));
    QCOMPARE(bench.popup->getPassword(), QString());
    QCOMPARE(bench.popup->lineEditText(), QString());
}

void TestPassword::isShared()
{
    Bench bench(u"0000"_s);
    delete bench.popup;
    bench.popup = QvexPasswordPopup::instance();
    QCOMPARE(bench.popup, QvexPasswordPopup::instance());
    QVERIFY(!bench.popup->parentWidget());
    bench.popup->setLocalPasswordLevel(1);
    // Without a parent application it is in the active window, the message, too.
    bench.tick = true;
    QVERIFY(bench.test());
    bench.popup->setLocalPasswordLevel(1);
    bench.typed = u"1"_s;
    QVERIFY(!bench.test());
    QCOMPARE(bench.messages, 1);
    QVERIFY(!bench.popup->parentApplication());
}

void TestPassword::outlivesNothing()
{
    Bench bench;
    soon([&] { delete bench.popup; });
    QVERIFY(!bench.popup->testAndRemoveProtectionPopup(true, false));
}

void TestPassword::refusesAPasswordThatNobodyCouldEnter()
{
    Bench bench;
    messages().allow(u"a password of more than 128 characters is refused"_s);
    bench.popup->setLocalNormalPassword(QString(129, u'1'));
    QVERIFY(bench.test());
}

void TestPassword::overwritesSecrets()
{
    alignas(SecretText) std::array<char, sizeof(SecretText)> memory {};
    const auto holds = [&memory](char16_t letter) {
        const volatile char *bytes = memory.data();
        return std::any_of(bytes, bytes + memory.size(),
                           [letter](char byte) { return byte == char(letter); });
    };
    auto *secret = new (memory.data()) SecretText;
    QVERIFY(secret->assign(u"xyx"));
    QVERIFY(holds(u'y'));
    secret->remove(1, 2);
    QVERIFY(holds(u'x') && !holds(u'y'));
    secret->~SecretText();
    QVERIFY(!holds(u'x'));
}

QTEST_MAIN(TestPassword)
#include "tst_password.moc"
