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

struct EventCount : QObject
{
    EventCount(QObject *watched, const QList<QEvent::Type> &counted)
        : types(counted)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += types.contains(event->type()) ? 1 : 0;
        return false;
    }

    QList<QEvent::Type> types;
    int count = 0;
};

/// Four pages, the second of which is shown.
struct Stack
{
    Stack()
    {
        (new QGridLayout(&window))->addWidget(stack);
        window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
        for (int i = 0; i < 4; ++i) {
            pages.append(new QWidget);
            (new QGridLayout(pages[i]))->addWidget(new QLabel(u"page"_s, pages[i]));
            stack->addWidget(pages[i]);
        }
        stack->setCurrentIndex(1);
        stack->setSpeed(60);
        window.resize(500, 400);
        window.show();
        QCoreApplication::processEvents();
    }

    /// From page 1 to page 2.
    void slideHalfway()
    {
        stack->setSpeed(600);
        QVERIFY(stack->slideInNext());
        QVERIFY(pollUntil([this] { return pages[2]->x() < stack->width() * 3 / 4; }));
    }
    /// Also checks that it alone is visible, in its place; -1 when there is none.
    int settledPage() const
    {
        for (QWidget *page : stack->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            const bool isCurrent = page == stack->currentWidget();
            if (page->isHidden() == isCurrent || !page->pos().isNull()
                || (isCurrent && page->size() != stack->size())) {
                return -2;
            }
        }
        return stack->count() > 0 ? int(pages.indexOf(stack->currentWidget())) : -1;
    }

    QWidget window;
    SlidingStackedWidget *stack = new SlidingStackedWidget(&window);
    QList<QPointer<QWidget>> pages;
    QSignalSpy started {stack, &SlidingStackedWidget::animationStarted};
    QSignalSpy finished {stack, &SlidingStackedWidget::animationFinished};
};

/// Does something when a widget comes up, once.
struct OnShow : QObject
{
    OnShow(QWidget *widget, std::function<void()> act)
        : m_act(std::move(act))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show && m_act) {
            std::exchange(m_act, nullptr)();
        }
        return false;
    }

private:
    std::function<void()> m_act;
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
    void slides_data()
    {
        QTest::addColumn<Slide>("slide");
        QTest::addColumn<int>("page");
        QTest::addColumn<QPoint>("from"); // in sizes of the stack, null when nothing slides
        using S = SlidingStackedWidget;
        const auto row = [](const char *name, int page, QPoint from, const Slide &slide) {
            QTest::newRow(name) << slide << page << from;
        };
        row("next", 2, {1, 0}, [](S &s) { return s.slideInNext(); });
        row("previous", 0, {-1, 0}, [](S &s) { return s.slideInPrev(); });
        row("next, from right to left", 2, {-1, 0},
            [](S &s) { return s.setLayoutDirection(Qt::RightToLeft), s.slideInNext(); });
        row("down", 2, {0, -1}, [](S &s) { return s.setVerticalMode(), s.slideInNext(); });
        row("up", 0, {0, 1}, [](S &s) { return s.setVerticalMode(), s.slideInPrev(); });
        row("in a direction", 3, {-1, 0},
            [](S &s) { return s.slideInIdx(3, S::HorizontalEarlier); });
        row("past the end", 2, {1, 0}, [](S &s) { return s.slideInIdx(6); });
        row("far before the begin", 3, {-1, 0}, [](S &s) { return s.slideInIdx(-9); });
        row("around", 3, {-1, 0},
            [](S &s) { return s.setCurrentIndex(0), s.setWrap(true), s.slideInPrev(); });
        row("at once", 2, {}, [](S &s) { return s.setSpeed(0), s.slideInNext(); });
        row("to itself", 1, {}, [](S &s) { return s.slideInIdx(1); });
        row("to itself, around", 1, {}, [](S &s) { return s.slideInIdx(5); });
        row("to nothing", 1, {}, [](S &s) { return s.slideInWgt(nullptr); });
        row("not past the end", 3, {}, [](S &s) { return s.setCurrentIndex(3), s.slideInNext(); });
        row("not before the begin", 0, {},
            [](S &s) { return s.setCurrentIndex(0), s.slideInPrev(); });
    }

    void slides()
    {
        QFETCH(const Slide, slide);
        QFETCH(const int, page);
        QFETCH(const QPoint, from);
        Stack stack;
        QPoint begin;
        QObject::connect(stack.stack, &SlidingStackedWidget::animationStarted, stack.stack,
                         [&] { begin = stack.pages[page]->pos(); });
        const bool hasStarted = slide(*stack.stack);
        QCOMPARE(stack.started.count(), hasStarted ? 1 : 0);
        if (!from.isNull()) {
            QVERIFY(hasStarted);
            QCOMPARE(begin,
                     QPoint(from.x() * stack.stack->width(), from.y() * stack.stack->height()));
            QCOMPARE(stack.finished.count(), 0);
        }
        EventCount layouts(stack.pages[page], {QEvent::LayoutRequest, QEvent::Resize});
        QTRY_COMPARE(stack.finished.count(), stack.started.count());
        QCOMPARE(layouts.count, 0);
        QCOMPARE(stack.settledPage(), page);
    }

    void faultEndsTheSlideInPlace_data()
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
        row("new page moved elsewhere", 1, true,
            [](Stack &s) { s.pages[2]->setParent(&s.window); });
        row("all pages deleted", -1, true, [](Stack &s) { qDeleteAll(s.pages); });
        row("resized", 2, true, [](Stack &s) { s.window.resize(700, 300), qApp->processEvents(); });
        row("another page chosen", 3, true, [](Stack &s) { s.stack->setCurrentIndex(3); });
        row("new page chosen", 2, true, [](Stack &s) { s.stack->setCurrentIndex(2); });
        row("other page deleted", 2, false, [](Stack &s) { delete s.pages[0]; });
        row("page inserted", 2, false, [](Stack &s) { s.stack->insertWidget(0, new QWidget); });
        row("label grows", 2, false,
            [](Stack &s) { s.pages[1]->findChild<QLabel *>()->setText(u"two\nlines"_s); });
        row("hidden", 2, false, [](Stack &s) { s.window.hide(); });
    }

    void faultEndsTheSlideInPlace()
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
        QCOMPARE(stack.settledPage(), page);
        QCOMPARE(stack.stack->slideInIdx(0), page >= 0);
    }

    void startIsToldBeforeTheEnd()
    {
        Stack stack;
        QString told;
        stack.stack->connect(stack.stack, &SlidingStackedWidget::animationStarted, stack.stack,
                             [&] { told += u'S'; });
        stack.stack->connect(stack.stack, &SlidingStackedWidget::animationFinished, stack.stack,
                             [&] { told += u'F'; });
        OnShow onShow(stack.pages[2], [&] { delete stack.pages[1]; });
        QVERIFY(stack.stack->slideInNext());
        QCOMPARE(told, u"SF"_s);
        QCOMPARE(stack.settledPage(), 2);
    }

    void refusesAndLocksUntilTheEnd()
    {
        Stack stack;
        stack.slideHalfway();
        QVERIFY(!stack.stack->slideInNext() && !stack.stack->slideInPrev());
        QVERIFY(!stack.stack->slideInIdx(3) && !stack.stack->slideInWgt(stack.pages[0]));
        QCOMPARE(stack.started.count(), 1);
        stack.stack->setRemoteLocked(true);
        QVERIFY(stack.stack->isEnabled());
        QTRY_COMPARE(stack.finished.count(), 1);
        QVERIFY(!stack.stack->isEnabled());
        stack.stack->setRemoteLocked(false);
        QVERIFY(stack.stack->isEnabled());
    }

    void slotOfTheEndMayGoOnOrDeleteTheStack()
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

    void fadesInPaints()
    {
        for (const auto &[duration, paints] : {std::pair(333, 11), {0, 1}, {100000, 255}}) {
            for (const bool fadesIn : {true, false}) {
                QWidget window;
                window.show();
                const QPointer<FaderWidget> fader = new FaderWidget(&window);
                fader->setFadeDuration(duration);
                EventCount painted(fader, {QEvent::Paint});
                QSignalSpy stopped(
                    fader, fadesIn ? &FaderWidget::fadeInStopped : &FaderWidget::fadeOutStopped);
                fadesIn ? fader->start() : fader->startFadeOut();
                QVERIFY(pollUntil([&] { return !fader || (fader->update(), false); }));
                QCOMPARE(painted.count, paints);
                QCOMPARE(stopped.count(), 1);
            }
        }
    }

    void faderCoversItsParent()
    {
        QWidget window;
        window.setPalette(QColor(10, 200, 30));
        auto *button = new QPushButton(&window);
        button->resize(300, 200);
        window.show();
        QSignalSpy clicked(button, &QPushButton::clicked);
        const QPointer<FaderWidget> fader = new FaderWidget(&window);
        QCOMPARE(fader->fadeColor(), window.palette().color(QPalette::Window));
        QCOMPARE(FaderWidget().fadeColor(), QColor(Qt::white));
        EventCount presses(&window, {QEvent::MouseButtonPress});
        fader->start();
        window.resize(500, 400);
        Finger(window).tap({50, 50});
        QCOMPARE(fader->geometry(), window.rect());
        QCOMPARE(clicked.count() + presses.count, 0);
        QTRY_VERIFY(!fader);
        Finger(window).tap({50, 50});
        QCOMPARE(clicked.count(), 1);
    }
};

QTEST_MAIN(TestTransitions)
#include "tst_transitions.moc"
