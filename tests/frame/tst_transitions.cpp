#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <frame/FaderWidget.h>
#include <frame/SlidingStackedWidget.h>

#include "Finger.h"
#include "GuardedTest.h"
#include "Poll.h"

using namespace Qt::StringLiterals;

namespace {

/// Counts events of a kind that reach an object.
class EventCount : public QObject
{
public:
    EventCount(QObject *watched, std::initializer_list<QEvent::Type> types)
        : m_types(types)
    {
        watched->installEventFilter(this);
    }

    int count() const { return m_count; }

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += m_types.contains(event->type()) ? 1 : 0;
        return false;
    }

    QList<QEvent::Type> m_types;
    int m_count = 0;
};

/// Four pages, the second of which is shown.
class Stack
{
public:
    Stack()
    {
        auto *all = new QGridLayout(&window);
        all->setSizeConstraint(QLayout::SetNoConstraint);
        all->addWidget(stack);
        for (int i = 0; i < 4; ++i) {
            auto *page = new QWidget;
            auto *content = new QGridLayout(page);
            content->addWidget(new QLabel(u"page %1"_s.arg(i), page));
            stack->addWidget(page);
            pages.append(page);
        }
        stack->setCurrentIndex(1);
        stack->setSpeed(60);
        window.resize(500, 400);
        window.show();
        QCoreApplication::processEvents();
    }

    /// Starts a slide from page 1 to page 2 and waits until it is on its way.
    void slideHalfway()
    {
        stack->setSpeed(600);
        QVERIFY(stack->slideInNext());
        QVERIFY(pollUntil([this] { return pages[2]->x() < stack->width() * 3 / 4; }));
    }
    /// -1 when there is none.
    int pageShown() const
    {
        return stack->count() > 0 ? int(pages.indexOf(stack->currentWidget())) : -1;
    }
    bool isSettled() const
    {
        for (QWidget *page : stack->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            const bool isCurrent = page == stack->currentWidget();
            if (page->isHidden() == isCurrent || (isCurrent && page->geometry() != stack->rect())) {
                return false;
            }
        }
        return true;
    }

    QWidget window;
    SlidingStackedWidget *stack = new SlidingStackedWidget(&window);
    QList<QPointer<QWidget>> pages;
    QSignalSpy started {stack, &SlidingStackedWidget::animationStarted};
    QSignalSpy finished {stack, &SlidingStackedWidget::animationFinished};
};

using Slide = std::function<bool(SlidingStackedWidget &)>;
using Fault = std::function<void(Stack &)>;

} // namespace

Q_DECLARE_METATYPE(Slide)
Q_DECLARE_METATYPE(Fault)

/** Slides that are disturbed, and fades. */
class TestTransitions : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void slides_data();
    void slides();
    void slidesWithoutLayingOut();
    void faultEndsTheSlideInPlace_data();
    void faultEndsTheSlideInPlace();
    void refusesASecondSlide();
    void locksAtTheEndOfTheSlide();
    void onePageOrNoneDoesNotSlide();
    void slotOfTheEndMayGoOnOrDeleteTheStack();
    void fadesInPaints_data();
    void fadesInPaints();
    void fadeTakesItsTimeAndDeletesTheFader();
    void faderCoversItsParent();
};

void TestTransitions::slides_data()
{
    QTest::addColumn<Slide>("slide");
    QTest::addColumn<int>("page");
    QTest::addColumn<QPoint>("from"); // where the new page comes from, in sizes of the stack
    using S = SlidingStackedWidget;
    const auto row = [](const char *name, const Slide &slide, int page, QPoint from) {
        QTest::newRow(name) << slide << page << from;
    };
    row("next", [](S &s) { return s.slideInNext(); }, 2, {1, 0});
    row("previous", [](S &s) { return s.slideInPrev(); }, 0, {-1, 0});
    row("next, vertical", [](S &s) { return s.setVerticalMode(), s.slideInNext(); }, 2, {0, -1});
    row("previous, vertical", [](S &s) { return s.setVerticalMode(), s.slideInPrev(); }, 0, {0, 1});
    row("to a page", [](S &s) { return s.slideInWgt(s.widget(3)); }, 3, {1, 0});
    row("in a direction", [](S &s) { return s.slideInIdx(3, S::HorizontalEarlier); }, 3, {-1, 0});
    row("past the end", [](S &s) { return s.slideInIdx(6); }, 2, {1, 0});
    row("far before the begin", [](S &s) { return s.slideInIdx(-9); }, 3, {-1, 0});
    row("around",
        [](S &s) {
            s.setCurrentIndex(3);
            s.setWrap(true);
            return s.slideInNext();
        },
        0, {1, 0});
    row("at once", [](S &s) { return s.setSpeed(0), s.slideInNext(); }, 2, {});
    row("to itself", [](S &s) { return s.slideInIdx(1); }, 1, {});
    row("to itself, around", [](S &s) { return s.slideInIdx(5); }, 1, {});
    row("to nothing", [](S &s) { return s.slideInWgt(nullptr); }, 1, {});
    row("not past the end", [](S &s) { return s.setCurrentIndex(3), s.slideInNext(); }, 3, {});
    row("not before the begin", [](S &s) { return s.setCurrentIndex(0), s.slideInPrev(); }, 0, {});
}

void TestTransitions::slides()
{
    QFETCH(const Slide, slide);
    QFETCH(const int, page);
    QFETCH(const QPoint, from);
    Stack stack;
    QPoint begin;
    QObject::connect(stack.stack, &SlidingStackedWidget::animationStarted, stack.stack,
                     [&] { begin = stack.pages[page]->pos(); });
    const int before = stack.pageShown();
    const bool hasStarted = slide(*stack.stack);
    QCOMPARE(stack.started.count(), hasStarted ? 1 : 0);
    if (!from.isNull()) {
        QVERIFY(hasStarted);
        QCOMPARE(begin, QPoint(from.x() * stack.stack->width(), from.y() * stack.stack->height()));
        QCOMPARE(stack.finished.count(), 0);
        QTRY_COMPARE(stack.finished.count(), 1);
        QVERIFY(stack.pages[before]->isHidden());
        QCOMPARE(stack.pages[before]->pos(), QPoint());
    }
    QCOMPARE(stack.finished.count(), stack.started.count());
    QCOMPARE(stack.pageShown(), page);
    QVERIFY(stack.isSettled());
}

void TestTransitions::slidesWithoutLayingOut()
{
    Stack stack;
    stack.stack->setSpeed(200);
    std::vector<std::unique_ptr<EventCount>> counts;
    QVERIFY(stack.stack->slideInNext());
    for (const auto &page : stack.pages) {
        counts.push_back(std::make_unique<EventCount>(
            page, std::initializer_list {QEvent::LayoutRequest, QEvent::Resize}));
    }
    QTRY_COMPARE(stack.finished.count(), 1);
    for (const auto &count : counts) {
        QCOMPARE(count->count(), 0);
    }
}

void TestTransitions::faultEndsTheSlideInPlace_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<int>("page"); // that is current in the end, -1 for none
    QTest::addColumn<bool>("ends"); // the slide at once
    const auto row = [](const char *name, int page, bool ends, const Fault &fault) {
        QTest::newRow(name) << fault << page << ends;
    };
    row("old page removed", 2, true, [](Stack &s) { s.stack->removeWidget(s.pages[1]); });
    row("new page removed", 1, true, [](Stack &s) { s.stack->removeWidget(s.pages[2]); });
    row("old page deleted", 2, true, [](Stack &s) { delete s.pages[1]; });
    row("new page deleted", 1, true, [](Stack &s) { delete s.pages[2]; });
    row("new page moved elsewhere", 1, true, [](Stack &s) { s.pages[2]->setParent(&s.window); });
    row("all pages deleted", -1, true, [](Stack &s) { qDeleteAll(s.pages); });
    row("resized", 2, true, [](Stack &s) {
        s.window.resize(700, 300);
        QCoreApplication::processEvents();
    });
    row("another page chosen", 3, true, [](Stack &s) { s.stack->setCurrentIndex(3); });
    row("new page chosen", 2, true, [](Stack &s) { s.stack->setCurrentIndex(2); });
    row("other page deleted", 2, false, [](Stack &s) { delete s.pages[0]; });
    row("page inserted", 2, false, [](Stack &s) { s.stack->insertWidget(0, new QWidget); });
    row("label grows", 2, false,
        [](Stack &s) { s.pages[1]->findChild<QLabel *>()->setText(u"two\nlines"_s); });
    row("hidden", 2, false, [](Stack &s) { s.window.hide(); });
}

void TestTransitions::faultEndsTheSlideInPlace()
{
    QFETCH(const Fault, fault);
    QFETCH(const int, page);
    QFETCH(const bool, ends);
    Stack stack;
    stack.slideHalfway();
    const QPointer<QWidget> old = stack.pages[1];
    const int x = old->x();
    fault(stack);
    QCOMPARE(stack.finished.count(), ends ? 1 : 0);
    if (!ends) {
        QCoreApplication::processEvents();
        QCOMPARE_LE(old->x(), x);
        QTRY_COMPARE(stack.finished.count(), 1);
    }
    QCOMPARE(stack.pageShown(), page);
    QVERIFY(stack.isSettled());
    QCOMPARE(stack.stack->slideInIdx(0), page >= 0);
}

void TestTransitions::refusesASecondSlide()
{
    Stack stack;
    stack.slideHalfway();
    QVERIFY(!stack.stack->slideInNext());
    QVERIFY(!stack.stack->slideInPrev());
    QVERIFY(!stack.stack->slideInIdx(3));
    QVERIFY(!stack.stack->slideInWgt(stack.pages[0]));
    QCOMPARE(stack.started.count(), 1);
}

void TestTransitions::locksAtTheEndOfTheSlide()
{
    Stack stack;
    stack.slideHalfway();
    stack.stack->setRemoteLocked(true);
    QVERIFY(stack.stack->isEnabled());
    QTRY_COMPARE(stack.finished.count(), 1);
    QVERIFY(!stack.stack->isEnabled());
    stack.stack->setRemoteLocked(false);
    QVERIFY(stack.stack->isEnabled());
}

void TestTransitions::onePageOrNoneDoesNotSlide()
{
    SlidingStackedWidget stack;
    stack.setWrap(true);
    for (int pages = 0; pages < 2; ++pages) {
        QVERIFY(!stack.slideInNext());
        QVERIFY(!stack.slideInPrev());
        QVERIFY(!stack.slideInIdx(7));
        stack.addWidget(new QWidget);
    }
}

void TestTransitions::slotOfTheEndMayGoOnOrDeleteTheStack()
{
    for (const int speed : {0, 30}) {
        Stack stack;
        stack.stack->setSpeed(speed);
        QPointer<SlidingStackedWidget> alive = stack.stack;
        QObject::connect(alive, &SlidingStackedWidget::animationFinished, alive, [&] {
            if (!alive->slideInNext()) {
                delete alive;
            }
        });
        QVERIFY(alive->slideInNext());
        QTRY_VERIFY(!alive);
        QCOMPARE(stack.finished.count(), 2);
    }
}

void TestTransitions::fadesInPaints_data()
{
    QTest::addColumn<int>("duration");
    QTest::addColumn<int>("paints");
    QTest::newRow("default") << 333 << 11;
    QTest::newRow("at once") << 0 << 1;
    QTest::newRow("negative") << -5 << 1;
    QTest::newRow("longer than a step of 1 lasts") << 100000 << 255;
}

void TestTransitions::fadesInPaints()
{
    QFETCH(const int, duration);
    QFETCH(const int, paints);
    for (const bool fadesIn : {true, false}) {
        QWidget window;
        window.show();
        const QPointer<FaderWidget> fader = new FaderWidget(&window);
        fader->setFadeDuration(duration);
        const EventCount painted(fader, {QEvent::Paint});
        const QSignalSpy stopped(
            fader, fadesIn ? &FaderWidget::fadeInStopped : &FaderWidget::fadeOutStopped);
        fadesIn ? fader->startFadeIn() : fader->startFadeOut();
        QVERIFY(pollUntil([&] {
            if (fader) {
                fader->update();
            }
            return stopped.count() > 0;
        }));
        QCOMPARE(painted.count(), paints);
    }
}

void TestTransitions::fadeTakesItsTimeAndDeletesTheFader()
{
    QWidget window;
    window.setPalette(QColor(10, 200, 30));
    window.show();
    QPointer<FaderWidget> fader = new FaderWidget(&window);
    QCOMPARE(fader->fadeColor(), window.palette().color(QPalette::Window));
    QSignalSpy stopped(fader, &FaderWidget::fadeOutStopped);
    const EventCount painted(fader, {QEvent::Paint});
    QElapsedTimer clock;
    clock.start();
    fader->startFadeOut();
    QTRY_COMPARE(stopped.count(), 1);
    QCOMPARE(painted.count(), 11);
    QCOMPARE_GE(clock.elapsed(), 10 * 30);
    QTRY_VERIFY(!fader);
    QCOMPARE(FaderWidget().fadeColor(), QColor(Qt::white));
}

void TestTransitions::faderCoversItsParent()
{
    QDialog window;
    window.resize(300, 200);
    auto *button = new QPushButton(&window);
    button->resize(300, 200);
    window.show();
    QSignalSpy clicked(button, &QPushButton::clicked);
    auto *fader = new FaderWidget(&window);
    fader->setFadeDuration(100000);
    fader->start();
    window.resize(500, 400);
    QTRY_COMPARE(fader->geometry(), window.rect());
    const EventCount presses(&window, {QEvent::MouseButtonPress});
    Finger(window).tap({50, 50});
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(presses.count(), 0);
    fader->close();
    Finger(window).tap({50, 50});
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(TestTransitions)
#include "tst_transitions.moc"
