#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

#include <functional>
#include <limits>
#include <random>

#include <input/QLineEditBase4.h>
#include <input/QLineEditBin.h>
#include <input/QLineEditCodingPAM4.h>
#include <input/QLineEditHex.h>
#include <input/QLineEditNumber.h>
#include <input/QLrudDialog.h>
#include <input/QvexNumpadDlg.h>
#include <input/ScriptedHidDriver.h>
#include <input/VexHID.h>
#include <properties/PropertiesManager.h>

#include "../dialogs/Screen.h"
#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr long LastEditor = 103;

QLrudDialog &keys()
{
    return *QLrudDialog::Instance();
}

PropertiesManager &properties()
{
    return *PropertiesManager::instance();
}

/// The numpad that runs now.
QvexNumpadDlg *numpad()
{
    return qobject_cast<QvexNumpadDlg *>(QvexDialog::activeDialog());
}

/// What is shown, with brackets around the selected digit.
QString shown(const QLineEdit &field)
{
    QString text = field.text();
    if (field.hasSelectedText()) {
        text.insert(field.selectionEnd(), u']');
        text.insert(field.selectionStart(), u'[');
    }
    return text;
}

/// Where a digit is in a field that is not being edited.
QPoint placeOf(QLineEdit &field, int index)
{
    field.setCursorPosition(index);
    const QRect cursor = field.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return cursor.center() + QPoint(1, 0);
}

void tapDigit(QLineEdit &field, int index)
{
    tap(&field, placeOf(field, index));
}

/// Lets a tap open the numpad or the wheel editor, as the user does.
void choose(QLineEditNumber &field, bool isNumpad)
{
    if (isNumpad) {
        soon([] { numpad()->reject(); });
    }
    QMetaObject::invokeMethod(&field, isNumpad ? "on_showNumpad" : "on_showEditController");
    keys().hide();
}

/// + and - turn the wheel, < and > select, w is an undirected turn, m changes its mode, h hides.
void play(const QString &script)
{
    static const QHash<QChar, std::function<void()>> acts {
        {u'+', [] { Q_EMIT keys().advanceWheel(1, 0); }},
        {u'-', [] { Q_EMIT keys().advanceWheel(-1, 0); }},
        {u'<', [] { Q_EMIT keys().pressedLeft(); }},
        {u'>', [] { Q_EMIT keys().pressedRight(); }},
        {u'w', [] { Q_EMIT keys().advanceWheel(1, -1); }},
        {u'm', [] { Q_EMIT keys().modeChanged(); }},
        {u'h', [] { keys().hide(); }},
    };
    for (const QChar act : script) {
        acts[act]();
    }
}

/// A number of @p decimals digits after the point, put together digit by digit from the right.
QString written(qint64 scaled, int decimals)
{
    QString text;
    quint64 rest = scaled < 0 ? -quint64(scaled) : quint64(scaled);
    for (int exponent = -decimals; exponent <= 0 || rest > 0; ++exponent, rest /= 10) {
        if (!text.isEmpty() && exponent % 3 == 0) {
            text.prepend(exponent == 0 ? u'.' : u' ');
        }
        text.prepend(QChar(u'0' + int(rest % 10)));
    }
    return scaled < 0 ? u'-' + text : text;
}

/// What a new field shows of a value at the end of its range; null when it gives back another.
template<typename Value, typename Getter>
QString numberText(Value value, Getter getter, int decimals = 0)
{
    QLineEditNumber field;
    field.setMinimum(std::min(value, Value(0)));
    field.setMaximum(std::max(value, Value(0)));
    field.setDecimals(decimals);
    field.setValue(value);
    return (field.*getter)() == value && field.isModified() ? field.text() : QString();
}

template<typename Field>
QString radixText(quint64 maximum, quint64 value)
{
    Field field;
    field.setMaximum(maximum);
    field.setValue(value);
    return field.value() == value && field.isModified() ? field.text() : QString();
}

} // namespace

/** Fields of numbers, and how they are edited. */
class TestLineEdits : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void separators();
    void shownIsStored();
    void rangeCarriesTheValueAlong();
    void radixFieldsPadWithZeros();
    void wheelTurnsADigit_data();
    void wheelTurnsADigit();
    void wheelAgreesWithPaper();
    void limitsAreSilent();
    void heldKeysRepeat();
    void keypadTurnsTheOpenField();
    void ordinaryWheelScrollsThePage();
    void numpadIsAsked();
    void remoteLockKeepsEditorsShut();
    void unitKeysArePassedOn();
    void editorsAreSwitched();
    void deletedInItsEditor_data();
    void deletedInItsEditor();

private:
    std::optional<Screen> m_screen;
    std::unique_ptr<QLineEditNumber> m_field;
    ScriptedHidDriver *m_keypad = nullptr;
};

void TestLineEdits::initTestCase()
{
    properties().registerStatusProperty(LastEditor, u"LastEditor"_s, u"7"_s, 0);
    auto keypad = std::make_unique<ScriptedHidDriver>();
    m_keypad = keypad.get();
    VexHID::setDriver(std::move(keypad));
    m_screen.emplace();
    // The first field takes the property over.
    QLineEditNumber first(&*m_screen);
    first.show();
    bool isNumpad = false;
    soon([&] {
        isNumpad = numpad();
        QvexDialog::cancellAllDialogBoxes();
    });
    tap(&first);
    QVERIFY(isNumpad);
}

void TestLineEdits::cleanupTestCase()
{
    m_field.reset();
    QLrudDialog::Destroy();
    VexHID::Destroy();
    m_screen.reset();
}

void TestLineEdits::init()
{
    GuardedTest::init();
    m_field = std::make_unique<QLineEditNumber>(&*m_screen);
    m_field->setGeometry(200, 100, 400, 60);
    m_field->show();
    choose(*m_field, false);
}

void TestLineEdits::separators()
{
    const QList<std::pair<QString, QString>> numbers {
        {u"1234567.1234567"_s, u"1 234 567.123 456 7"_s},
        {u"-123456.123456"_s, u"-123 456.123 456"_s},
        {u"+123."_s, u"+123."_s},
    };
    for (const auto &[bare, grouped] : numbers) {
        QCOMPARE(QLineEditNumber::addThousandSeparator(bare), grouped);
        QCOMPARE(QLineEditNumber::addThousandSeparator(grouped), grouped);
        QCOMPARE(QLineEditNumber::removeThousandSeparator(grouped), bare);
    }
    QCOMPARE(QLineEditNumber::addThousandSeparator(u"-.5"_s), u"-0.5"_s);
}

void TestLineEdits::shownIsStored()
{
    using Field = QLineEditNumber;
    using Long = std::numeric_limits<qint64>;
    const auto most = std::numeric_limits<quint64>::max();
    QCOMPARE(numberText(Long::min(), &Field::llvalue), u"-9 223 372 036 854 775 808"_s);
    QCOMPARE(numberText(Long::max(), &Field::llvalue), u"9 223 372 036 854 775 807"_s);
    QCOMPARE(numberText(most, &Field::ullvalue), u"18 446 744 073 709 551 615"_s);
    QCOMPARE(numberText(long(Long::min()), &Field::lvalue), u"-9 223 372 036 854 775 808"_s);
    QCOMPARE(numberText(ulong(most), &Field::ulvalue), u"18 446 744 073 709 551 615"_s);
    QCOMPARE(numberText(0.123456789012345, &Field::value, 15), u"0.123 456 789 012 345"_s);
    QCOMPARE(numberText(-12345678901.2345, &Field::value, 4), u"-12 345 678 901.234 5"_s);
}

void TestLineEdits::rangeCarriesTheValueAlong()
{
    m_field->setValue(5);
    m_field->enableUpdateTextFromClient(false);
    m_field->setMaximum(3);
    QCOMPARE(m_field->text(), u"5"_s);
    m_field->UpdateText();
    QCOMPARE(m_field->text(), u"3"_s);
}

void TestLineEdits::radixFieldsPadWithZeros()
{
    const auto most = std::numeric_limits<quint64>::max();
    QCOMPARE(radixText<QLineEditHex>(0xFFFF, 10), u"000A"_s);
    QCOMPARE(radixText<QLineEditHex>(most, most), QString(16, u'F'));
    QCOMPARE(radixText<QLineEditBin>(255, 5), u"00000101"_s);
    QCOMPARE(radixText<QLineEditBin>(most, most), QString(64, u'1'));
    QCOMPARE(radixText<QLineEditBin>(0, 0), u"0"_s);
    QCOMPARE(radixText<QLineEditBase4>(255, 0x1B), u"0123"_s);
    QCOMPARE(radixText<QLineEditCodingPAM4>(255, 0x1B), u"0132"_s);
}

void TestLineEdits::wheelTurnsADigit_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("tapped");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &value, int tapped, const QString &script,
                        const QString &expected) {
        QTest::newRow(name) << value << tapped << script << expected;
    };
    row("carry", u"9"_s, 0, u"+"_s, u"1[0]"_s);
    row("carry over a separator", u"999"_s, 1, u"+"_s, u"1 0[0]9"_s);
    row("borrow", u"1000"_s, 4, u"-"_s, u"99[9]"_s);
    row("the highest digit stays", u"100"_s, 0, u"-"_s, u"[0]00"_s);
    row("and comes back", u"1000"_s, 0, u"-+"_s, u"[1] 000"_s);
    row("nothing stays after it", u"1000"_s, 0, u"-h"_s, u"0"_s);
    row("down through 0", u"2"_s, 0, u"---"_s, u"-[1]"_s);
    row("up through 0", u"-2"_s, 1, u"+++"_s, u"[1]"_s);
    row("tens through 0", u"15"_s, 0, u"--"_s, u"-[0]5"_s);
    row("ten tenths", u"0.0"_s, 2, u"++++++++++"_s, u"1.[0]"_s);
    row("15 decimals", u"0.999999999999999"_s, 20, u"+"_s, u"1.000 000 000 000 00[0]"_s);
    row("18 digits", u"999999999999999999"_s, 23, u"+"_s, u"1 000 000 000 000 000 00[0]"_s);
    row("to the maximum", u"9223372036854775800"_s, 0, u"+"_s, u"[9] 223 372 036 854 775 807"_s);
    row("over the point", u"1.5"_s, 0, u">+<+"_s, u"[2].6"_s);
    row("tap on the point", u"12.5"_s, 2, {}, u"1[2].5"_s);
    row("tap on a separator", u"1234"_s, 1, {}, u"[1] 234"_s);
    row("tap on the sign", u"-12"_s, 0, {}, u"-[1]2"_s);
    row("tap behind the end", u"12"_s, 2, {}, u"1[2]"_s);
    row("left stays off the sign", u"-12"_s, 2, u"<<<"_s, u"-[1]2"_s);
    row("right stays at the end", u"1234"_s, 0, u">>>>>"_s, u"1 23[4]"_s);
    row("undirected", u"12"_s, 1, u"w"_s, u"1[3]"_s);
    row("undirected, other mode", u"12"_s, 1, u"mw"_s, u"[1]2"_s);
}

void TestLineEdits::wheelTurnsADigit()
{
    QFETCH(const QString, value);
    QFETCH(const int, tapped);
    QFETCH(const QString, script);
    m_field->setMinimum(std::numeric_limits<qint64>::min());
    m_field->setMaximum(std::numeric_limits<qint64>::max());
    m_field->setDecimals(value.contains(u'.') ? int(value.size() - value.indexOf(u'.') - 1) : 0);
    m_field->setText(value);
    const QPoint digit = placeOf(*m_field, tapped);
    tap(m_field.get());
    tap(m_field.get(), digit);
    play(script);
    QTEST(shown(*m_field), "expected");
}

/// Random turns against whole numbers of the last digit.
void TestLineEdits::wheelAgreesWithPaper()
{
    std::mt19937_64 random(1);
    constexpr qint64 most = 999'999'999'999'999;
    for (int decimals : {0, 1, 3, 4, 15}) {
        qint64 unit = 1;
        for (int i = 0; i < decimals; ++i) {
            unit *= 10;
        }
        m_field->setDecimals(decimals);
        m_field->setMaximum(double(most) / double(unit));
        m_field->setMinimum(-double(most) / double(unit));
        qint64 expected = qint64(random() % quint64(most));
        m_field->setText(written(expected, decimals));
        for (int i = 0; i < 300; ++i) {
            keys().hide();
            tapDigit(*m_field, int(random() % quint64(m_field->text().size())));
            qint64 weight = 1;
            for (qsizetype at = m_field->selectionEnd(); at < m_field->text().size(); ++at) {
                weight *= m_field->text()[at].isDigit() ? 10 : 1;
            }
            const int turns = int(random() % 41) - 20;
            Q_EMIT keys().advanceWheel(turns, 0);
            expected = std::clamp(expected + turns * weight, -most, most);
            keys().hide();
            QCOMPARE(m_field->text(), written(expected, decimals));
        }
    }
}

void TestLineEdits::limitsAreSilent()
{
    QTest::keyClick(m_field.get(), Qt::Key_Space);
    QVERIFY(keys().isVisible());
    play(u"<>"_s);
    QCOMPARE(m_field->text(), QString());
    m_field->setMaximum(20);
    m_field->setStep(7);
    m_field->setValue(10);
    tapDigit(*m_field, 1);
    QSignalSpy changed(m_field.get(), &QLineEditNumber::valueChanged);
    play(u"+++"_s);
    QCOMPARE(shown(*m_field), u"2[0]"_s);
    QCOMPARE(changed.size(), 2);
    m_field->setMaximum(30);
    QTest::keyClick(m_field.get(), Qt::Key_Up);
    play(u"-----"_s);
    QCOMPARE(shown(*m_field), u"[0]"_s);
    QCOMPARE(changed.size(), 7);
    QTest::keyClick(m_field.get(), Qt::Key_Escape);
    QVERIFY(!keys().isVisible());
}

void TestLineEdits::heldKeysRepeat()
{
    const auto interval = [this](const QString &name) {
        const auto *timer = m_field->findChild<QTimer *>(name);
        return timer && timer->isActive() ? timer->interval() : -1;
    };
    m_field->setValue(5);
    tapDigit(*m_field, 0);
    const QPoint nowhere(5, 700);
    QTest::mousePress(m_screen->windowHandle(), Qt::LeftButton, {}, nowhere);
    Q_EMIT keys().pressedUp();
    QCOMPARE(m_field->text(), u"6"_s);
    QCOMPARE(interval(u"upTimer"_s), 900);
    QCOMPARE(interval(u"releaseTimer"_s), 10);
    QMetaObject::invokeMethod(m_field->findChild<QTimer *>(u"upTimer"_s), "timeout");
    QCOMPARE(m_field->text(), u"7"_s);
    QTRY_COMPARE(m_field->text(), u"8"_s);
    QCOMPARE(interval(u"upTimer"_s), 100);
    QTest::mouseRelease(m_screen->windowHandle(), Qt::LeftButton, {}, nowhere);
    QTRY_VERIFY(m_field->findChildren<QTimer *>().isEmpty());
    Q_EMIT keys().pressedDown();
    Q_EMIT keys().releasedDown();
    QCOMPARE(interval(u"downTimer"_s), -1);
}

void TestLineEdits::keypadTurnsTheOpenField()
{
    QLineEditNumber other(&*m_screen);
    other.setGeometry(200, 200, 400, 60);
    other.show();
    other.setValue(5);
    m_field->setValue(5);
    tapDigit(*m_field, 0);
    m_keypad->turn(3);
    QTRY_COMPARE(m_field->text(), u"8"_s);
    tapDigit(other, 0);
    QVERIFY(keys().isVisible());
    QCOMPARE(shown(*m_field), u"8"_s);
    m_keypad->turn(-2);
    QTRY_COMPARE(other.text(), u"3"_s);
    QCOMPARE(m_field->text(), u"8"_s);
    QvexDialog question(&*m_screen);
    question.open();
    bool isTurned = false;
    connect(VexHID::Instance(), &VexHID::AdvanceWheel, &question, [&] { isTurned = true; });
    m_keypad->turn(5);
    QTRY_VERIFY(isTurned);
    QCOMPARE(other.text(), u"3"_s);
    question.reject();
    other.hide();
    QVERIFY(!keys().isVisible());
}

void TestLineEdits::ordinaryWheelScrollsThePage()
{
    QScrollArea area(&*m_screen);
    area.setGeometry(700, 100, 300, 200);
    auto *page = new QWidget;
    page->resize(280, 2000);
    auto *field = new QLineEditNumber(page);
    field->setGeometry(10, 10, 200, 60);
    field->setValue(5);
    area.setWidget(page);
    area.show();
    const auto turn = [&](int angle) {
        const QPoint at(20, 20);
        QWheelEvent event(at, field->mapToGlobal(at), {}, {0, angle}, {}, {}, Qt::NoScrollPhase,
                          false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(field, &event);
    };
    turn(-120);
    QCOMPARE(field->text(), u"5"_s);
    QVERIFY(area.verticalScrollBar()->value() > 0);
    area.verticalScrollBar()->setValue(0);
    tapDigit(*field, 0);
    turn(-60);
    turn(-60);
    QCOMPARE(field->text(), u"4"_s);
    QCOMPARE(area.verticalScrollBar()->value(), 0);
}

void TestLineEdits::numpadIsAsked()
{
    choose(*m_field, true);
    m_field->setValue(1234);
    QLineEditHex hex(&*m_screen);
    hex.setValue(0x1234);
    hex.show();
    for (const bool accepted : {false, true}) {
        for (QLineEdit *field :
             {static_cast<QLineEdit *>(m_field.get()), static_cast<QLineEdit *>(&hex)}) {
            soon([&] {
                QTest::keyClicks(QApplication::focusWidget(), u"4321"_s);
                accepted ? numpad()->accept() : numpad()->reject();
            });
            tap(field);
        }
        QCOMPARE(m_field->text(), accepted ? u"4 321"_s : u"1 234"_s);
        QCOMPARE(hex.value(), accepted ? 0x4321U : 0x1234U);
    }
}

void TestLineEdits::remoteLockKeepsEditorsShut()
{
    for (const bool isNumpad : {false, true}) {
        choose(*m_field, isNumpad);
        QvexDialog::setRemoteLock(true);
        tap(m_field.get()); // would not return from a numpad
        QvexDialog::setRemoteLock(false);
        QVERIFY(!keys().isVisible());
    }
}

void TestLineEdits::unitKeysArePassedOn()
{
    choose(*m_field, true);
    m_field->setDecimals(3);
    m_field->setUnitKeys(u"V"_s, {u"m"_s, QString()});
    soon([] { QTest::keyClicks(QApplication::focusWidget(), u"1500m"_s); });
    tap(m_field.get());
    QCOMPARE(m_field->text(), u"1.500"_s);
}

void TestLineEdits::editorsAreSwitched()
{
    m_field->setValue(1234);
    tapDigit(*m_field, 0);
    QVERIFY(keys().isVisible());
    bool isNumpad = false;
    soon([&] {
        isNumpad = numpad() && !keys().isVisible();
        Q_EMIT numpad()->showEditControllerClicked();
    });
    Q_EMIT keys().clickedShowNumpad();
    QVERIFY(isNumpad);
    QVERIFY(!numpad());
    QVERIFY(keys().isVisible());
    QVERIFY(m_field->hasSelectedText());
    QCOMPARE(properties().getProperty(LastEditor), u"0"_s);
    choose(*m_field, true);
    QCOMPARE(properties().getProperty(LastEditor), u"1"_s);
}

void TestLineEdits::deletedInItsEditor_data()
{
    QTest::addColumn<QString>("editor");
    QTest::newRow("wheel") << u"wheel"_s;
    QTest::newRow("wheel, by its end") << u"wheel's end"_s;
    QTest::newRow("wheel, before the numpad") << u"wheel to numpad"_s;
    QTest::newRow("numpad") << u"numpad"_s;
    QTest::newRow("numpad of a radix") << u"radix"_s;
}

void TestLineEdits::deletedInItsEditor()
{
    QFETCH(const QString, editor);
    choose(*m_field, editor == u"numpad");
    QLineEdit *field = m_field.get();
    if (editor == u"radix") {
        field = new QLineEditHex(&*m_screen);
        field->show();
    }
    const auto remove = [&] { field == m_field.get() ? m_field.reset() : delete field; };
    if (!editor.startsWith(u"wheel")) {
        soon(remove);
    }
    tapThrough(field);
    QObject context;
    if (editor == u"wheel") {
        Q_EMIT keys().pressedUp();
        remove();
    } else if (editor == u"wheel's end") {
        connect(&keys(), &QLrudDialog::hidden, &context, remove);
        QTest::keyClick(field, Qt::Key_Escape);
    } else if (editor == u"wheel to numpad") {
        connect(&keys(), &QLrudDialog::hidden, &context, remove);
        Q_EMIT keys().clickedShowNumpad();
    }
    QVERIFY(!keys().isVisible());
    QVERIFY(!QvexDialog::activeDialog());
    QVERIFY(m_screen->focusWidget() != field);
    play(u"+<wm"_s);
}

QTEST_MAIN(TestLineEdits)

#include "tst_lineedits.moc"
