#include <QImage>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <functional>
#include <memory>

#include <input/QLrudDialog.h>
#include <input/QPushButtonLrud.h>
#include <properties/PropertiesManager.h>

#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr long positionProperty = 101;

struct Arrow
{
    Arrow(const QString &keyName, const QPoint &keyPosition, void (QLrudDialog::*keyPressed)())
        : name(keyName)
        , position(keyPosition)
        , pressed(keyPressed)
        , released(u":/images/key_%1.png"_s.arg(name))
        , held(u":/images/key_%1_push.png"_s.arg(name))
    {
    }

    QPushButtonLrud *key() const
    {
        return QLrudDialog::Instance()->findChild<QPushButtonLrud *>("LrudArrow_"_L1 + name);
    }

    QString name;
    QPoint position;
    void (QLrudDialog::*pressed)();
    QImage released;
    QImage held;
};

const QList<Arrow> &arrows()
{
    static const QList<Arrow> all {{u"up"_s, {51, 42}, &QLrudDialog::pressedUp},
                                   {u"down"_s, {51, 115}, &QLrudDialog::pressedDown},
                                   {u"left"_s, {44, 50}, &QLrudDialog::pressedLeft},
                                   {u"right"_s, {139, 50}, &QLrudDialog::pressedRight}};
    return all;
}

/// The names of the keys that are drawn at a point of their frame.
QStringList drawnAt(const QPoint &point)
{
    QStringList names;
    for (const Arrow &arrow : arrows()) {
        const QPoint at = point - arrow.position;
        if (arrow.released.valid(at) && qAlpha(arrow.released.pixel(at)) > 0) {
            names << arrow.name;
        }
    }
    return names;
}

QStringList heldKeys()
{
    QStringList names;
    for (const Arrow &arrow : arrows()) {
        const QIcon icon = arrow.key()->icon();
        const QImage shown = icon.pixmap(arrow.held.size()).toImage();
        if (shown == arrow.held.convertToFormat(shown.format())) {
            names << arrow.name;
        }
    }
    return names;
}

void turnWheel(QWidget *widget, int delta)
{
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, delta}, {}, {}, Qt::NoScrollPhase,
                      false);
    // Only those from outside are passed on to parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

} // namespace

class TestLrud;
using Act = std::function<void(TestLrud &)>;
Q_DECLARE_METATYPE(Act)

class TestLrud : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keepsPositionWithinBounds_data();
    void keepsPositionWithinBounds();
    void slidesToTheRightEdge_data();
    void slidesToTheRightEdge();
    void pressGoesToTheKeyThatIsSeen_data();
    void pressGoesToTheKeyThatIsSeen();
    void everyPressIsReleased();
    void backgroundAndWheel();
    void hidesOnce_data();
    void hidesOnce();

private:
    QLrudDialog *shown();
    static QWidget *part(const char *name)
    {
        return QLrudDialog::Instance()->findChild<QWidget *>(QLatin1StringView(name));
    }
    static void store(int position)
    {
        PropertiesManager::instance()->setProperty(positionProperty, QString::number(position),
                                                   false);
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QWidget> m_owner;
};

void TestLrud::init()
{
    GuardedTest::init();
    PropertiesManager::instance()->registerStatusProperty(positionProperty, u"Keys"_s, u""_s, 1);
    store(100);
    m_window = std::make_unique<QWidget>();
    m_window->setObjectName(u"FwMainWindow"_s);
    m_window->resize(1280, 800);
    m_window->show();
}

void TestLrud::cleanup()
{
    QLrudDialog::Destroy();
    m_window.reset();
    GuardedTest::cleanup();
}

QLrudDialog *TestLrud::shown()
{
    QLrudDialog *dialog = QLrudDialog::Instance();
    dialog->show();
    return dialog;
}

void TestLrud::keepsPositionWithinBounds_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("height");
    const QByteArray up = "LrudMoveUp";
    const QByteArray down = "LrudMoveDown";
    QTest::newRow("lowest stored") << 31 << QByteArray() << 31 << 800;
    QTest::newRow("highest stored") << 489 << QByteArray() << 489 << 800;
    QTest::newRow("stored too low") << 30 << QByteArray() << 100 << 800;
    QTest::newRow("stored too high") << 490 << QByteArray() << 100 << 800;
    QTest::newRow("up, inside") << 41 << up << 31 << 800;
    QTest::newRow("up, outside") << 40 << up << 40 << 800;
    QTest::newRow("down, inside") << 479 << down << 489 << 800;
    QTest::newRow("down, outside") << 480 << down << 480 << 800;
    QTest::newRow("low screen") << 480 << QByteArray() << 289 << 600;
    QTest::newRow("low screen, up") << 480 << up << 279 << 600;
    QTest::newRow("low screen, down, outside") << 280 << down << 280 << 600;
    QTest::newRow("high screen, down, outside") << 480 << down << 480 << 1200;
}

void TestLrud::keepsPositionWithinBounds()
{
    QFETCH(int, stored);
    QFETCH(QByteArray, key);
    QFETCH(int, position);
    QFETCH(int, height);
    store(stored);
    m_window->resize(1280, height);
    shown();
    if (!key.isEmpty()) {
        QTest::mouseClick(part(key), Qt::LeftButton);
        QCOMPARE(PropertiesManager::instance()->getPropertyInt(positionProperty, 0), position);
    }
    QCOMPARE(part("LrudFrame")->geometry(),
             QRect(QPoint(0, position), QPoint(210, position + 207)));
    QCOMPARE(part("LrudNumpadFrame")->geometry(),
             QRect(QPoint(96, position + 178), QPoint(209, position + 255)));
}

void TestLrud::slidesToTheRightEdge_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("end");
    QTest::newRow("usual") << QSize(1280, 800) << QRect(QPoint(1070, 0), QPoint(1280, 799));
    QTest::newRow("smaller") << QSize(1024, 600) << QRect(QPoint(814, 0), QPoint(1024, 599));
}

void TestLrud::slidesToTheRightEdge()
{
    QFETCH(QSize, size);
    QFETCH(QRect, end);
    store(489);
    m_window->resize(size);
    const auto *dialog = shown();
    QCOMPARE(dialog->parentWidget(), m_window.get());
    QCOMPARE(dialog->geometry(), end.translated(100, 0));
    QTRY_COMPARE(dialog->geometry(), end);
    // Also at its lowest the numpad key is above the move key.
    QVERIFY(part("LrudNumpadFrame")->geometry().bottom() < part("LrudMoveDown")->y());
    m_window->resize(size + QSize(50, 0));
    QCOMPARE(dialog->geometry(), end.translated(50, 0));
}

void TestLrud::pressGoesToTheKeyThatIsSeen_data()
{
    QTest::addColumn<int>("arrow");
    QTest::addColumn<QRect>("quarter");
    for (int i = 0; i < arrows().size(); ++i) {
        const QImage &image = arrows()[i].released;
        const QSize half(image.width() / 2, image.height() / 2);
        for (const QPoint corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
            const QPoint start(corner.x() * half.width(), corner.y() * half.height());
            QTest::addRow("%s %d%d", qPrintable(arrows()[i].name), corner.x(), corner.y())
                << i << QRect(start, half);
        }
    }
}

/// For the transparent pixels of one quarter of a key's image.
void TestLrud::pressGoesToTheKeyThatIsSeen()
{
    QFETCH(int, arrow);
    QFETCH(QRect, quarter);
    const Arrow &touched = arrows()[arrow];
    auto *dialog = shown();
    QPushButtonLrud *key = touched.key();
    QCOMPARE(key->geometry(), QRect(touched.position, touched.released.size()));
    QSignalSpy overlapped(key,
                          quarter.x() > 0
                              ? &QPushButtonLrud::mousePressEventFromRightOverlappedArea
                              : &QPushButtonLrud::mousePressEventFromLeftOverlappedArea);
    QString told;
    for (const Arrow &other : arrows()) {
        connect(dialog, other.pressed, key, [&] { told += other.name; });
    }
    int presses = 0;
    // Not from 0, which the test library takes for the centre.
    for (int i = 1; i < quarter.width() * quarter.height(); i += 23) {
        const QPoint at = quarter.topLeft() + QPoint(i % quarter.width(), i / quarter.width());
        const QStringList seen = drawnAt(touched.position + at);
        QVERIFY2(seen.size() < 2, "The keys' outlines overlap");
        if (!seen.contains(touched.name)) {
            ++presses;
            told.clear();
            QTest::mousePress(key, Qt::LeftButton, {}, at);
            QCOMPARE(told, seen.join(QString()));
            QCOMPARE(heldKeys(), seen);
            QTest::mouseRelease(key, Qt::LeftButton, {}, at);
            QCOMPARE(heldKeys(), QStringList());
        }
    }
    QVERIFY(presses > 0);
    QCOMPARE(overlapped.size(), presses);
    QVERIFY(!key->isDown() && dialog->isVisible());
}

void TestLrud::everyPressIsReleased()
{
    auto *dialog = shown();
    QSignalSpy pressed(dialog, &QLrudDialog::pressedUp);
    QSignalSpy released(dialog, &QLrudDialog::releasedUp);
    QPushButtonLrud *up = arrows()[0].key();
    const QPoint own(69, 20);
    const QPoint corner(1, 1);
    const QPoint outside(-300, 0);
    for (const QPoint &end : {own, corner, outside}) {
        QTest::mousePress(up, Qt::LeftButton, {}, own);
        QCOMPARE(heldKeys(), QStringList(u"up"_s));
        QTest::mouseRelease(up, Qt::LeftButton, {}, end);
        QCOMPARE(heldKeys(), QStringList());
    }
    // The second of two quick taps comes as a double click.
    QTest::mouseDClick(up, Qt::LeftButton, {}, own);
    QTest::mouseRelease(up, Qt::LeftButton, {}, own);
    QCOMPARE(pressed.size(), 4);
    QCOMPARE(released.size(), 4);
}

void TestLrud::backgroundAndWheel()
{
    auto *dialog = shown();
    QSignalSpy mode(dialog, &QLrudDialog::modeChanged);
    QSignalSpy wheel(dialog, &QLrudDialog::advanceWheel);
    QTest::mousePress(dialog, Qt::MiddleButton, {}, {5, 5});
    QTest::mousePress(arrows()[0].key(), Qt::MiddleButton, {}, {69, 20});
    QCOMPARE(mode.size(), 2);
    turnWheel(dialog, 120);
    turnWheel(dialog, -360);
    turnWheel(part("LrudNumpad"), 240);
    QCOMPARE(wheel, (QList<QList<QVariant>> {{1, -1}, {-3, -1}, {2, -1}}));
    QVERIFY(dialog->isVisible());
}

void TestLrud::hidesOnce_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<bool>("survives");
    QTest::newRow("hide") << Act([](TestLrud &) { QLrudDialog::Instance()->hide(); }) << true;
    QTest::newRow("tap beside the keys") << Act([](TestLrud &) {
        QTest::mousePress(QLrudDialog::Instance(), Qt::LeftButton, {}, {5, 5});
    }) << true;
    QTest::newRow("the window is hidden")
        << Act([](TestLrud &test) { test.m_window->hide(); }) << true;
    QTest::newRow("the window goes") << Act([](TestLrud &test) { test.m_window.reset(); }) << true;
    QTest::newRow("its owner goes") << Act([](TestLrud &test) { test.m_owner.reset(); }) << false;
    QTest::newRow("destroyed") << Act([](TestLrud &) { QLrudDialog::Destroy(); }) << false;
    QTest::newRow("destroyed by who hears of its end") << Act([](TestLrud &) {
        QLrudDialog *dialog = QLrudDialog::Instance();
        connect(dialog, &QLrudDialog::hidden, dialog, &QLrudDialog::Destroy);
        dialog->hide();
    }) << false;
}

/// While two keys are held, whose releases are lost.
void TestLrud::hidesOnce()
{
    QFETCH(Act, act);
    QFETCH(bool, survives);
    m_owner = std::make_unique<QWidget>();
    if (!survives) {
        QLrudDialog::Instance()->setParent(m_owner.get(), Qt::Dialog);
        QLrudDialog::Instance()->setParentApplication(m_window.get());
    }
    const QPointer<QLrudDialog> dialog = shown();
    QVERIFY(dialog->isVisible());
    QSignalSpy hidden(dialog, &QLrudDialog::hidden);
    QSignalSpy released(dialog, &QLrudDialog::releasedUp);
    QTest::mousePress(arrows()[0].key(), Qt::LeftButton, {}, {69, 20});
    QTest::mousePress(part("LrudMoveUp"), Qt::LeftButton);
    act(*this);
    QCOMPARE(released.size(), 1);
    QCOMPARE(hidden.size(), 1);
    QCOMPARE(QLrudDialog::Instance() == dialog, survives);
    QCOMPARE(heldKeys(), QStringList());
    if (m_window) {
        m_window->show();
    }
    QVERIFY(!QLrudDialog::Instance()->isVisible());
    // Longer than it takes a held move key to repeat.
    QTest::qWait(350);
    QCOMPARE(PropertiesManager::instance()->getPropertyInt(positionProperty, 0), 100);
}

QTEST_MAIN(TestLrud)
#include "tst_lrud.moc"
