#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>

#include <dialogs/FwButtonTabWidget.h>
#include <dialogs/TabButton.h>

#include "GuardedTest.h"
#include "Screen.h"

using namespace Qt::StringLiterals;

namespace {

/// A shown tab widget with as many tabs as there are texts.
struct Tabs
{
    explicit Tabs(const QStringList &texts, int width = 800)
    {
        for (const QString &text : texts) {
            widget.addTab(new QLabel(text), text);
        }
        changes = std::make_unique<QSignalSpy>(&widget, &FwButtonTabWidget::currentChanged);
        widget.resize(width, 400);
        widget.show();
        if (!QTest::qWaitForWindowActive(&widget)) {
            qFatal("The window is not active");
        }
    }

    QString current() const
    {
        const auto *page = qobject_cast<QLabel *>(widget.currentWidget());
        return page && widget.tabButton(widget.currentIndex())->isChecked() ? page->text()
                                                                            : QString();
    }

    FwButtonTabWidget widget;
    std::unique_ptr<QSignalSpy> changes;
};

} // namespace

class TestTabWidget : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void tapsAndKeysChangeThePage();
    void tabsComeAndGo();
    void pageGivenAwayTakesItsTabAlong();
    void slotMayRemoveTheTabThatAKeyChose();
    void longTextsAreElided();
    void tabsThatDoNotFitAreScrolled();
    void tabsAreAccessible();
};

void TestTabWidget::tapsAndKeysChangeThePage()
{
    Tabs tabs({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    tabs.widget.setTabEnabled(2, false);
    tapThrough(tabs.widget.tabButton(1));
    QCOMPARE(tabs.current(), u"b"_s);
    tapThrough(tabs.widget.tabButton(2));
    tapThrough(tabs.widget.tabButton(1));
    QCOMPARE(tabs.current(), u"b"_s);
    for (const auto &[key, page] :
         {std::pair(Qt::Key_Right, u"d"_s), std::pair(Qt::Key_Right, u"d"_s),
          std::pair(Qt::Key_Left, u"b"_s), std::pair(Qt::Key_End, u"d"_s),
          std::pair(Qt::Key_Home, u"a"_s), std::pair(Qt::Key_Left, u"a"_s)}) {
        QTest::keyClick(tabs.widget.windowHandle(), key);
        QCOMPARE(tabs.current(), page);
    }
    QCOMPARE(tabs.changes->size(), 5);
    tabs.widget.setTabEnabled(0, false);
    QCOMPARE(tabs.current(), u"b"_s);
    tabs.widget.setCurrentIndex(7);
    QCOMPARE(tabs.widget.currentIndex(), 1);
}

void TestTabWidget::tabsComeAndGo()
{
    Tabs tabs({u"a"_s, u"b"_s});
    tabs.widget.setCurrentIndex(1);
    QCOMPARE(tabs.widget.insertTab(0, new QLabel(u"z"_s), {}, u"z"_s), 0);
    QCOMPARE(tabs.current(), u"b"_s);
    tabs.widget.UpdateText(0, u"y"_s);
    tabs.widget.UpdateText(3, u"none"_s);
    QCOMPARE(tabs.widget.tabText(0) + tabs.widget.tabText(3), u"y"_s);
    const QPointer<QWidget> page = tabs.widget.widget(2);
    tabs.widget.removeTab(2);
    QVERIFY(page && !page->isVisible());
    QCOMPARE(tabs.current(), u"a"_s);
    delete tabs.widget.widget(0);
    QCOMPARE(tabs.current(), u"a"_s);
    QCOMPARE(tabs.widget.count(), 1);
    // A tab that removes itself when it is tapped.
    TabButton *last = tabs.widget.tabButton(0);
    QObject::connect(last, &QAbstractButton::clicked, last, [&] { tabs.widget.removeTab(0); });
    tap(last);
    QCOMPARE(tabs.widget.currentIndex(), -1);
    QCOMPARE(tabs.changes->last().first().toInt(), -1);
}

void TestTabWidget::pageGivenAwayTakesItsTabAlong()
{
    Tabs from({u"a"_s, u"b"_s, u"c"_s});
    FwButtonTabWidget to;
    QLabel *page = qobject_cast<QLabel *>(from.widget.widget(0));
    to.addTab(page, u"A"_s);
    QCOMPARE(from.widget.count(), 2);
    QCOMPARE(from.current(), u"b"_s);
    QCOMPARE(from.widget.tabText(0), u"b"_s);
    delete page;
    QCOMPARE(to.count(), 0);
    QCOMPARE(from.widget.count(), 2);
}

void TestTabWidget::slotMayRemoveTheTabThatAKeyChose()
{
    Tabs tabs({u"a"_s, u"b"_s, u"c"_s});
    connect(&tabs.widget, &FwButtonTabWidget::currentChanged, &tabs.widget, [&](int index) {
        if (index == 2) {
            tabs.widget.removeTab(2);
        }
    });
    tabs.widget.tabButton(0)->setFocus();
    QTest::keyClick(tabs.widget.tabButton(0), Qt::Key_End);
    QCOMPARE(tabs.widget.count(), 2);
    QCOMPARE(tabs.current(), u"b"_s);
}

void TestTabWidget::longTextsAreElided()
{
    const QString text = u"A text that is too long for any tab to show it in full"_s;
    Tabs tabs({text, u"short"_s});
    QCOMPARE(tabs.widget.tabButton(0)->toolTip(), text);
    QCOMPARE(tabs.widget.tabButton(1)->toolTip(), QString());
    tabs.widget.UpdateText(1, text);
    QCOMPARE(tabs.widget.tabButton(1)->toolTip(), text);
}

void TestTabWidget::tabsThatDoNotFitAreScrolled()
{
    Tabs tabs({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s}, 400);
    auto *back = tabs.widget.findChild<QWidget *>(u"TabsBack"_s);
    auto *forth = tabs.widget.findChild<QWidget *>(u"TabsForward"_s);
    const auto shown = [&] {
        QString result;
        for (int i = 0; i < tabs.widget.count(); ++i) {
            const TabButton *button = tabs.widget.tabButton(i);
            if (button->isVisible() && tabs.widget.rect().contains(button->geometry())
                && button->width() >= 96) {
                result += button->text();
            }
        }
        return result;
    };
    QCOMPARE(shown(), u"abc"_s);
    QVERIFY(!back->isEnabled());
    tapThrough(forth);
    QCOMPARE(shown(), u"bcd"_s);
    QCOMPARE(tabs.current(), u"a"_s);
    tabs.widget.setCurrentIndex(6);
    QCOMPARE(shown(), u"efg"_s);
    QVERIFY(!forth->isEnabled());
    tabs.widget.removeTab(6);
    QCOMPARE(shown(), u"def"_s);
    tabs.widget.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(forth->x() < tabs.widget.tabButton(5)->x()
            && tabs.widget.tabButton(5)->x() < tabs.widget.tabButton(3)->x());
    tabs.widget.resize(800, 400);
    QCOMPARE(shown(), u"abcdef"_s);
    QVERIFY(!back->isVisible());
}

void TestTabWidget::tabsAreAccessible()
{
    Tabs tabs({u"a"_s, u"b"_s});
    QAccessibleInterface *tab = QAccessible::queryAccessibleInterface(tabs.widget.tabButton(1));
    QCOMPARE(tab->role(), QAccessible::PageTab);
    QCOMPARE(tab->text(QAccessible::Name), u"b"_s);
    QVERIFY(!tab->state().selected);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(tab->state().selected);
    QCOMPARE(tabs.current(), u"b"_s);
}

QTEST_MAIN(TestTabWidget)
#include "tst_tabwidget.moc"
