#include <QPlainTextEdit>
#include <QPointer>
#include <QTranslator>

#include <functional>

#include <dialogs/QvexMessageBox.h>

#include "GuardedTest.h"
#include "Screen.h"

using namespace Qt::StringLiterals;

using Box = QDialogButtonBox;
using Act = std::function<void(QvexMessageBox &)>;

Q_DECLARE_METATYPE(Act)

namespace {

/// A language whose words are the English ones in brackets.
class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return u'[' + QString::fromUtf8(source) + u']';
    }
};

Act key(Qt::Key key)
{
    return [key](QvexMessageBox &box) { QTest::keyClick(box.window()->windowHandle(), key); };
}

Act tapOn(Box::StandardButton button)
{
    return [button](QvexMessageBox &box) { tapThrough(box.button(button)); };
}

} // namespace

class TestMessageBox : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatEndedIt_data();
    void tellsWhatEndedIt();
    void firstKeyNeverOpensTheDetails();
    void buttonMayBeDeleted();
    void translatesItsTexts();
    void showsLongTextsInFull();
    void questionSurvivesItsParent();
    void leavesNothingBehind();
};

void TestMessageBox::tellsWhatEndedIt_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("result");
    const int saving = Box::Save | Box::Discard | Box::Cancel;
    const int asking = Box::Yes | Box::No;
    QTest::newRow("tap") << saving << tapOn(Box::Discard) << int(Box::Discard);
    QTest::newRow("no buttons given") << 0 << tapOn(Box::Ok) << int(Box::Ok);
    QTest::newRow("Return") << saving << key(Qt::Key_Return) << int(Box::Save);
    QTest::newRow("space") << saving << key(Qt::Key_Space) << int(Box::Save);
    QTest::newRow("Escape, Cancel") << saving << key(Qt::Key_Escape) << int(Box::Cancel);
    QTest::newRow("Escape, No") << asking << key(Qt::Key_Escape) << int(Box::No);
    QTest::newRow("Escape, one button")
        << int(Box::Apply) << key(Qt::Key_Escape) << int(Box::Apply);
    QTest::newRow("Escape, nothing fits")
        << int(Box::Yes | Box::YesToAll) << key(Qt::Key_Escape) << 0;
    QTest::newRow("Escape, disabled") << saving << Act([](QvexMessageBox &box) {
        box.button(Box::Cancel)->setEnabled(false);
        key(Qt::Key_Escape)(box);
    }) << 0;
    QTest::newRow("cancelled") << saving
                               << Act([](QvexMessageBox &) { QvexDialog::cancellAllDialogBoxes(); })
                               << 0;
    QTest::newRow("second button of one's own") << saving << Act([](QvexMessageBox &box) {
        box.addButton(u"First"_s, Box::ActionRole);
        auto *second = new QPushButton(u"Second"_s);
        box.addButton(second, Box::AcceptRole);
        QCoreApplication::sendPostedEvents();
        tapThrough(second);
        QCOMPARE(box.clickedButton(), second);
    }) << 3;
}

void TestMessageBox::tellsWhatEndedIt()
{
    QFETCH(const int, buttons);
    QFETCH(const Act, act);
    Screen screen;
    QvexMessageBox box(&screen);
    box.setStandardButtons(Box::StandardButtons(buttons));
    box.setDefaultButton(Box::Save);
    soon([&] {
        for (const QPushButton *button : box.findChildren<QPushButton *>()) {
            QVERIFY(button->isHidden() || button->height() >= 48);
        }
        act(box);
        box.isRunning() ? box.done(99) : void();
    });
    QTEST(box.exec(), "result");
    QTEST(box.result(), "result");
}

void TestMessageBox::firstKeyNeverOpensTheDetails()
{
    Screen screen;
    QvexMessageBox box(&screen);
    box.setDetailedText(u"Details"_s);
    box.setStandardButtons(Box::Cancel | Box::Save);
    soon([&] {
        key(Qt::Key_Space)(box);
        box.isRunning() ? box.done(99) : void();
    });
    QCOMPARE(box.exec(), int(Box::Save));
}

void TestMessageBox::buttonMayBeDeleted()
{
    Screen screen;
    QvexMessageBox box(&screen);
    alignas(QPushButton) std::array<std::byte, sizeof(QPushButton)> place;
    // The second has the address of the first, as it may happen with any new button.
    for (const int code : {2, 3}) {
        auto *button = new (place.data()) QPushButton(u"Own"_s);
        box.addButton(button, Box::AcceptRole);
        soon([&] { button->click(), box.isRunning() ? box.done(99) : void(); });
        const int result = box.exec();
        button->~QPushButton();
        QCOMPARE(result, code);
    }
}

void TestMessageBox::translatesItsTexts()
{
    Screen screen;
    QvexMessageBox box(&screen);
    const auto all = Box::Open | Box::Save | Box::Cancel | Box::Close | Box::Apply | Box::Reset
        | Box::YesToAll | Box::NoToAll | Box::Abort | Box::Retry | Box::Ignore;
    box.setStandardButtons(all);
    QPushButton *own = box.addButton(u"My own"_s, Box::ActionRole);
    box.open();
    const auto texts = [&box] {
        QStringList result;
        for (int bit = Box::FirstButton; bit <= Box::LastButton; bit <<= 1) {
            const QPushButton *button = box.button(Box::StandardButton(bit));
            button ? result.append(button->text()) : void();
        }
        return result.join(u',');
    };
    QCOMPARE(texts(),
             u"Save,Open,Yes to All,No to All,Abort,Retry,Ignore,Close,Cancel,Apply,Reset"_s);
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(texts(),
             u"[Save],[Open],[Yes to All],[No to All],[Abort],[Retry],[Ignore],[Close],"
             "[Cancel],[Apply],[Reset]"_s);
    QCOMPARE(own->text(), u"My own"_s);
    QCoreApplication::removeTranslator(&brackets);
    box.reject();
}

void TestMessageBox::showsLongTextsInFull()
{
    Screen screen;
    QvexMessageBox box(&screen);
    const QString path = u"/media/usb0/"_s + QString(u"abcdefghij"_s).repeated(30);
    box.setText(path);
    box.setInformativeText(u"One more.\n"_s.repeated(60));
    box.setDetailedText(u"Details"_s);
    box.setIcon(QvexMessageBox::Warning);
    box.open();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(box.text(), path);
    for (const bool detailed : {false, true}) {
        QVERIFY(screen.rect().contains(box.geometry()));
        QCOMPARE(box.findChild<QPlainTextEdit *>()->isVisible(), detailed);
        const auto *label = box.findChild<QWidget *>(u"MsgTextLabel"_s);
        QVERIFY(label->width() < box.width());
        tapThrough(box.findChild<QWidget *>(u"MsgDetailsButton"_s));
        QCoreApplication::sendPostedEvents();
    }
    QVERIFY(box.isVisible());
    box.reject();
}

void TestMessageBox::questionSurvivesItsParent()
{
    auto *screen = new Screen;
    soon([&] { delete std::exchange(screen, nullptr); });
    QCOMPARE(QvexMessageBox::question(screen, u"Title"_s, u"Text"_s), Box::NoButton);
    Screen another;
    soon([] { QTest::keyClick(QvexDialog::activeDialog(), Qt::Key_Return); });
    QCOMPARE(QvexMessageBox::question(&another, u"Title"_s, u"Text"_s, Box::Yes | Box::No, Box::No),
             Box::No);
    QvexDialog::setRemoteLock(true);
    QCOMPARE(QvexMessageBox::warning(&another, u"Title"_s, u"Text"_s), Box::NoButton);
    QvexDialog::setRemoteLock(false);
}

void TestMessageBox::leavesNothingBehind()
{
    Screen screen;
    const auto show = [&screen] {
        soon([] {
            tapThrough(static_cast<QvexMessageBox *>(QvexDialog::activeDialog())->button(Box::Ok));
        });
        QvexMessageBox::critical(&screen, u"Title"_s, u"Text "_s.repeated(300));
    };
    show();
    const auto before = screen.findChildren<QObject *>().size();
    const auto widgets = QApplication::allWidgets().size();
    for (int i = 0; i < 20; ++i) {
        show();
    }
    QCOMPARE(screen.findChildren<QObject *>().size(), before);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
}

QTEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"
