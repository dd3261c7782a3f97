#include <QAbstractButton>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>

#include <dialogs/QvexDialog.h>
#include <dialogs/QvexDialogBorder.h>

#include "GuardedTest.h"
#include "Screen.h"

using namespace Qt::StringLiterals;

namespace {

/// A dialog with a line edit and a button.
class Form : public QvexDialog
{
public:
    explicit Form(QWidget *parent, const QString &name = u"form"_s)
        : QvexDialog(parent)
    {
        setObjectName(name);
        setWindowTitle(u"A form"_s);
        auto *column = new QVBoxLayout(this);
        edit = new QLineEdit(this);
        button = new QPushButton(u"Inside"_s, this);
        column->addWidget(edit);
        column->addWidget(button);
    }

    QLineEdit *edit;
    QPushButton *button;
};

QvexDialogBorder *borderOf(const QvexDialog &dialog)
{
    const auto borders = dialog.parentWidget()->findChildren<QvexDialogBorder *>();
    const auto around = std::find_if(borders.cbegin(), borders.cend(), [&](QWidget *border) {
        return border->geometry().contains(dialog.geometry());
    });
    return around == borders.cend() ? nullptr : *around;
}

/// Where @p widget is in the dialog's parent application.
QRect placeOf(const QWidget *widget, const QvexDialog &dialog)
{
    return {widget->mapTo(dialog.parentWidget(), QPoint()), widget->size()};
}

/// Three dialogs that run inside one another.
class Nest
{
public:
    explicit Nest(QWidget *parent)
    {
        for (size_t i = 0; i < dialogs.size(); ++i) {
            dialogs[i] = new Form(parent, u"d%1"_s.arg(i + 1));
            QObject::connect(dialogs[i], &QDialog::finished, parent,
                             [this, i] { ended += QString::number(i + 1); });
        }
    }

    /// Does @p act in the innermost.
    void run(const std::function<void()> &act, size_t from = 0)
    {
        soon([this, act, from] { from + 1 < dialogs.size() ? run(act, from + 1) : act(); });
        results[from] = dialogs[from]->exec();
    }

    std::array<QPointer<Form>, 3> dialogs;
    QList<int> results {7, 7, 7};
    QString ended;
};

using Act = std::function<void(Nest &, Screen *&)>;

} // namespace

Q_DECLARE_METATYPE(Act)

class TestDialogs : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void runsUntilDone();
    void logsWhatHappensToTheStack_data();
    void logsWhatHappensToTheStack();
    void endsWithRejected_data();
    void endsWithRejected();
    void belongsToItsParentOnly();
    void focusDoesNotGoBackToADyingParent();
    void runsInAWindowThatIsNotShown();
    void keepsTouchesFromWhatIsBehind();
    void keepsKeysFromWhatIsBehind();
    void dialogShownAboveCanBeUsed();
    void nestedDialogsDarkenTheScreenOnce();
    void tapOutsideClosesAutoCloseDialog();
    void moveBarsMoveAllDialogs();
    void staysReachable_data();
    void staysReachable();

private:
    QTimer m_rescue; ///< ends a dialog that a failed comparison has left running
};

void TestDialogs::init()
{
    GuardedTest::init();
    m_rescue.callOnTimeout(qApp, &QvexDialog::cancellAllDialogBoxes);
    m_rescue.start(5000);
    QLoggingCategory::setFilterRules(u"vex.dialogs.debug=true"_s);
}

void TestDialogs::cleanup()
{
    QVERIFY(!QvexDialog::activeDialog());
    QvexDialog::setRemoteLock(false);
    // Back to the middle, from wherever a test has moved the dialogs to.
    QvexDialog compass;
    for (const auto &[direction, times] :
         {std::pair(1, 50), std::pair(2, 25), std::pair(3, 70), std::pair(4, 35)}) {
        for (int i = 0; i < times; ++i) {
            compass.moveDialog(direction);
        }
    }
    GuardedTest::cleanup();
}

void TestDialogs::runsUntilDone()
{
    Screen screen;
    screen.button->setFocus();
    Form form(&screen);
    soon([&] {
        QVERIFY(form.isVisible());
        QCOMPARE(QvexDialog::activeDialog(), &form);
        QCOMPARE(QApplication::focusWidget(), form.edit);
        form.done(5);
    });
    QCOMPARE(form.exec(), 5);
    QVERIFY(!form.isVisible());
    QCOMPARE(QApplication::focusWidget(), screen.button);
    // A slot that opens it again.
    connect(&form, &QDialog::finished, &form, &QvexDialog::open, Qt::SingleShotConnection);
    soon([&] { form.accept(); });
    form.exec();
    QVERIFY(form.isRunning() && form.isVisible());
}

void TestDialogs::logsWhatHappensToTheStack_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QStringList>("debug");
    QTest::addColumn<QStringList>("warnings");
    const auto inside = [](const std::function<void(Nest &)> &act) -> Act {
        return [act](Nest &nest, Screen *&) { nest.run([act, &nest] { act(nest); }); };
    };
    const QStringList none;
    QTest::newRow("ended in order") << inside([](Nest &nest) {
        for (auto i : {2, 1, 0}) {
            nest.dialogs[size_t(i)]->accept();
        }
    }) << none << none;
    QTest::newRow("all cancelled")
        << inside([](Nest &) { QvexDialog::cancellAllDialogBoxes(); })
        << QStringList {u"QvexDialog::cancellAllDialogBoxes: closing d3"_s,
                        u"QvexDialog::hideEvent: d3 is not found in the stack."_s,
                        u"QvexDialog::cancellAllDialogBoxes: closing d2"_s,
                        u"QvexDialog::hideEvent: d2 is not found in the stack."_s,
                        u"QvexDialog::cancellAllDialogBoxes: closing d1"_s,
                        u"QvexDialog::hideEvent d1 while the stack is empty."_s}
        << none;
    QTest::newRow("hidden out of order")
        << inside([](Nest &nest) {
               for (auto &dialog : nest.dialogs) {
                   dialog->hide();
               }
           })
        << none
        << QStringList {u"QvexDialog::hideEvent: d1 is not at the top of the stack."_s,
                        u"QvexDialog::hideEvent: d2 is not at the top of the stack."_s};
    QTest::newRow("run twice") << inside([](Nest &nest) {
        QCOMPARE(nest.dialogs[1]->exec(), -1);
        QvexDialog::setRemoteLock(true);
        QCOMPARE(nest.dialogs[1]->exec(), -1);
        QCOMPARE(QvexDialog::activeDialog(), nest.dialogs[2].data());
        for (auto i : {2, 1, 0}) {
            nest.dialogs[size_t(i)]->accept();
        }
    }) << none << QStringList(2, u"QDialog::exec() Recursive call detected"_s);
    QTest::newRow("locked") << Act([](Nest &nest, Screen *&) {
        QvexDialog::setRemoteLock(true);
        QCOMPARE(nest.dialogs[0]->exec(), 0);
        QVERIFY(nest.dialogs[0]->isHidden());
    }) << QStringList {u"QvexDialog::exec: auto-cancel dialog d1"_s}
                            << none;
    QTest::newRow("without a parent") << Act([](Nest &, Screen *&) {
        QvexDialog dialog;
        QCOMPARE(dialog.exec(), -1);
        dialog.show();
    }) << none
                                      << QStringList {u"QvexDialog::exec() NULL parent"_s,
                                                      u"QvexDialog::initSize() NULL parent"_s,
                                                      u"QvexDialogBorder::show() NULL parent"_s};
}

void TestDialogs::logsWhatHappensToTheStack()
{
    QFETCH(const Act, act);
    QFETCH(const QStringList, debug);
    QFETCH(QStringList, warnings);
    auto *screen = new Screen;
    Nest nest(screen);
    act(nest, screen);
    warnings.replaceInStrings(QRegularExpression(u"^"_s), u"vex.dialogs: "_s);
    QCOMPARE(messages().unannounced(), warnings);
    QCOMPARE(messages().debugTexts("vex.dialogs"), debug);
    messages().allow(u"QvexDialog|QDialog"_s);
    delete screen;
}

void TestDialogs::endsWithRejected_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("ended");
    QTest::newRow("all cancelled")
        << Act([](Nest &, Screen *&) { QvexDialog::cancellAllDialogBoxes(); }) << u"321"_s;
    QTest::newRow("cancelled by a slot") << Act([](Nest &nest, Screen *&) {
        connect(nest.dialogs[2]->button, &QPushButton::clicked, nest.dialogs[2],
                &QvexDialog::cancellAllDialogBoxes);
        tap(nest.dialogs[2]->button);
    }) << u"321"_s;
    QTest::newRow("window closed")
        << Act([](Nest &, Screen *&) { QApplication::closeAllWindows(); }) << u"321"_s;
    QTest::newRow("application quits")
        << Act([](Nest &, Screen *&) { QCoreApplication::exit(); }) << u"321"_s;
    QTest::newRow("window deleted")
        << Act([](Nest &, Screen *&screen) { delete std::exchange(screen, nullptr); }) << u"321"_s;
    QTest::newRow("window emptied") << Act([](Nest &, Screen *&screen) {
        while (!screen->children().isEmpty()) {
            delete screen->children().last();
        }
    }) << QString();
    QTest::newRow("deleted, newest first") << Act([](Nest &nest, Screen *&) {
        delete nest.dialogs[2];
        QCOMPARE(QvexDialog::activeDialog(), nest.dialogs[1].data());
        delete nest.dialogs[1];
        delete nest.dialogs[0];
    }) << QString();
    QTest::newRow("deleted, oldest first") << Act([](Nest &nest, Screen *&) {
        for (auto &dialog : nest.dialogs) {
            delete dialog;
        }
    }) << QString();
    QTest::newRow("deleted by its own slot") << Act([](Nest &nest, Screen *&) {
        connect(nest.dialogs[2], &QDialog::finished, qApp, [&nest] {
            for (auto &dialog : nest.dialogs) {
                delete dialog;
            }
        });
        QTest::keyClick(nest.dialogs[2], Qt::Key_Escape);
    }) << u"3"_s;
}

void TestDialogs::endsWithRejected()
{
    QFETCH(const Act, act);
    auto *screen = new Screen;
    Nest nest(screen);
    messages().allow(u"is not at the top of the stack"_s);
    soon([&] {
        nest.run([&] { act(nest, screen); });
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    QCOMPARE(nest.results, QList<int>(3, 0));
    QTEST(nest.ended, "ended");
    QVERIFY(!QvexDialog::activeDialog());
    delete screen;
}

void TestDialogs::belongsToItsParentOnly()
{
    QPointer<QvexDialog> owned;
    QvexDialog popup;
    popup.setObjectName(u"popup"_s);
    {
        Screen screen;
        auto *field = new QLineEdit(&screen);
        owned = new QvexDialog(field);
        soon([&] {
            QCOMPARE(owned->parentWidget(), &screen);
            delete field;
        });
        QCOMPARE(owned->exec(), 0);
        QVERIFY(!owned);
        popup.setParentApplication(&screen);
        popup.open();
        QVERIFY(popup.isVisible());
    }
    QVERIFY(!popup.isRunning());
    Screen another;
    popup.setParentApplication(&another);
    popup.open();
    QVERIFY(popup.isVisible());
    popup.accept();
}

void TestDialogs::focusDoesNotGoBackToADyingParent()
{
    Screen screen;
    auto *parent = new QPushButton(&screen);
    parent->show();
    parent->setFocus();
    auto *dialog = new QvexDialog(parent);
    (new QPushButton(dialog))->setFocus();
    dialog->open();
    const void *gone = parent;
    delete parent;
    QVERIFY(screen.focusWidget() != gone);
}

void TestDialogs::runsInAWindowThatIsNotShown()
{
    QWidget window;
    Form form(&window);
    soon([&] {
        QVERIFY(form.isVisible());
        QTest::keyClick(form.window()->windowHandle(), Qt::Key_Escape);
    });
    QCOMPARE(form.exec(), 0);
    QVERIFY(!form.isVisible() && !window.isVisible());
}

void TestDialogs::keepsTouchesFromWhatIsBehind()
{
    Screen screen;
    Screen other;
    Form form(&screen);
    QTest::mousePress(screen.button, Qt::LeftButton);
    form.open();
    QTest::mouseRelease(screen.button, Qt::LeftButton);
    QVERIFY(!screen.button->isDown());
    for (QWidget *behind : {screen.button, other.button}) {
        tapThrough(behind);
        tap(behind);
        QTest::mouseDClick(behind, Qt::LeftButton);
    }
    auto *latecomer = new QWidget(&screen);
    latecomer->resize(screen.size());
    latecomer->show();
    QCOMPARE(screen.clicks + other.clicks, 0);
    QSignalSpy clicked(form.button, &QPushButton::clicked);
    tapThrough(form.button);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(form.isVisible());
    // A tap that began while it ran must not end on what was behind.
    QTest::mousePress(screen.button, Qt::LeftButton);
    form.accept();
    QTest::mouseRelease(screen.button, Qt::LeftButton);
    latecomer->hide();
    tapThrough(screen.button);
    QCOMPARE(screen.clicks, 1);
}

void TestDialogs::keepsKeysFromWhatIsBehind()
{
    Screen screen;
    auto *field = new QLineEdit(&screen);
    field->show();
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), &screen);
    QSignalSpy activated(&shortcut, &QShortcut::activated);
    Form form(&screen);
    form.open();
    field->setFocus();
    QCOMPARE(QApplication::focusWidget(), form.edit);
    QTest::keyClick(field, 'x');
    QCOMPARE(field->text(), QString());
    QTest::keyClick(form.edit, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), form.button);
    QTest::keyClick(form.button, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), form.edit);
    form.edit->setEnabled(false);
    form.button->setEnabled(false);
    QTest::keyClick(screen.windowHandle(), Qt::Key_X);
    QTest::keyClick(screen.windowHandle(), Qt::Key_Escape);
    QVERIFY(!form.isVisible());
    QCOMPARE(activated.size(), 0);
    QTest::keyClick(&screen, Qt::Key_Escape);
    QCOMPARE(activated.size(), 1);
}

void TestDialogs::dialogShownAboveCanBeUsed()
{
    Screen screen;
    Form below(&screen);
    Form form(&screen);
    Form above(&screen);
    below.show();
    form.open();
    above.show();
    QCOMPARE(QApplication::focusWidget(), form.edit);
    for (Form *dialog : {&below, &form, &above}) {
        dialog->button->setCheckable(true);
        dialog == &above ? tapThrough(dialog->button) : tap(dialog->button);
    }
    QVERIFY(!below.button->isChecked() && form.button->isChecked() && above.button->isChecked());
    form.accept();
    tap(below.button);
    QVERIFY(below.button->isChecked());
}

void TestDialogs::nestedDialogsDarkenTheScreenOnce()
{
    Screen screen;
    const auto ink = [&] { return screen.grab().toImage().pixelColor(5, 795).lightness(); };
    const int bright = ink();
    QvexDialog lower(&screen);
    lower.open();
    const int behindOne = ink();
    QCOMPARE_LT(behindOne, bright);
    QvexDialog upper(&screen);
    upper.open();
    QCOMPARE_GT(ink(), behindOne * 2 / 3);
    messages().allow(u"not at the top"_s);
    lower.reject();
    QCOMPARE(ink(), behindOne);
}

void TestDialogs::tapOutsideClosesAutoCloseDialog()
{
    Screen screen;
    Form form(&screen);
    form.setAutoClose(true);
    for (const bool modal : {true, false}) {
        modal ? form.open() : form.show();
        tapThrough(form.button);
        tap(&form, {1, 1});
        tap(borderOf(form)->moveBar(QvexDialogBorder::Up));
        QVERIFY(form.isVisible());
        QSignalSpy rejected(&form, &QDialog::rejected);
        tapThrough(screen.button);
        QVERIFY(!form.isVisible());
        QCOMPARE(rejected.size(), 1);
    }
    QCOMPARE(screen.clicks, 0);
    tapThrough(screen.button);
    QCOMPARE(screen.clicks, 1);
}

void TestDialogs::moveBarsMoveAllDialogs()
{
    struct Row
    {
        QvexDialogBorder::Direction direction;
        int presses;
        QPoint moved;
    };
    Screen screen;
    Form form(&screen);
    form.open();
    const QPoint centre = form.pos();
    for (const Row &row :
         {Row {QvexDialogBorder::Up, 30, {0, -250}}, Row {QvexDialogBorder::Down, 60, {0, 250}},
          Row {QvexDialogBorder::Left, 40, {-350, 250}},
          Row {QvexDialogBorder::Right, 80, {350, 250}}}) {
        for (int i = 0; i < row.presses; ++i) {
            tap(borderOf(form)->moveBar(row.direction));
        }
        QCOMPARE(form.pos() - centre, row.moved);
    }
    QTest::keyClick(&form, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(form.pos() - centre, QPoint(350, 240));
    Form next(&screen);
    next.open();
    QCOMPARE(next.pos(), form.pos());
    QvexDialog fixed(&screen, true, false);
    fixed.moveDialog(QvexDialogBorder::Left);
    fixed.resize(form.size());
    fixed.show();
    QCOMPARE(fixed.pos(), centre);
    next.reject();
}

void TestDialogs::staysReachable_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QSize>("dialog");
    QTest::newRow("small in the window") << QSize(1280, 800) << QSize(200, 100);
    QTest::newRow("large in the window") << QSize(1280, 800) << QSize(1000, 600);
    QTest::newRow("as large as the window") << QSize(1280, 800) << QSize(1280, 800);
    QTest::newRow("larger than the window") << QSize(640, 480) << QSize(2000, 2000);
}

void TestDialogs::staysReachable()
{
    QFETCH(const QSize, window);
    QFETCH(const QSize, dialog);
    Screen screen;
    Form form(&screen);
    form.resize(dialog);
    form.open();
    screen.resize(window);
    for (int direction : {1, 3, 2, 4, 1}) {
        for (int i = 0; i < 80; ++i) {
            form.moveDialog(direction);
        }
        for (QWidget *widget : QWidgetList {borderOf(form), &form}) {
            QVERIFY(screen.rect().contains(placeOf(widget, form)));
        }
        QVERIFY(borderOf(form)->closeButton()->isVisible());
    }
    tapThrough(borderOf(form)->closeButton());
    QVERIFY(!form.isVisible());
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
