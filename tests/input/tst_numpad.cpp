#include <QAccessible>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTranslator>

#include <limits>

#include <input/NumericField.h>
#include <input/QvexNumpadDlg.h>

#include "../dialogs/Screen.h"
#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

/// What the entry looks like.
enum Look { Plain, Amber, Red };

DecimalNumber number(const QString &text)
{
    return DecimalNumber::fromText(text).value();
}

/// A window with a field in its middle, and the field's numpad.
struct Bench
{
    explicit Bench(int type = QvexNumpadDlg::Decimal)
        : field(new QWidget(&screen))
        , numpad(field, type)
    {
        field->setGeometry(540, 380, 200, 48);
        field->show();
    }

    void setField(const QString &range, int decimals, const QString &value)
    {
        numpad.setDecimals(decimals);
        numpad.field().setMinimum(number(range.section(u' ', 0, 0)));
        numpad.field().setMaximum(number(range.section(u' ', 1)));
        numpad.field().setValue(number(value));
    }

    QPushButton *key(const QString &name) { return numpad.findChild<QPushButton *>(name); }
    QLineEdit *entry() { return numpad.findChild<QLineEdit *>(); }
    QString reason() { return numpad.findChild<QLabel *>(u"NumpadReason"_s)->text(); }

    /// A digit stands for its key, "<" for backspace, "~" for the sign, and so on.
    void tapKeys(const QString &keys)
    {
        const QHash<QChar, QString> names {
            {u'<', u"Backspace"_s}, {u'c', u"Clear"_s},   {u'~', u"Sign"_s},
            {u'.', u"Point"_s},     {u'[', u"Left"_s},    {u']', u"Right"_s},
            {u'm', u"Minimum"_s},   {u'M', u"Maximum"_s}, {u'd', u"Default"_s},
        };
        for (const QChar character : keys) {
            QPushButton *tapped = key(u"NumpadKey_"_s + names.value(character, character));
            QVERIFY2(tapped && tapped->isVisible(), qPrintable(QString(character)));
            tap(tapped);
        }
    }

    Look look()
    {
        const auto *mark = numpad.findChild<QLabel *>(u"NumpadMark"_s);
        return mark->isHidden() ? Plain : mark->text() == u"\u2715" ? Red : Amber;
    }

    Screen screen;
    QWidget *field;
    QvexNumpadDlg numpad;
};

/// Translates into a language that begins all words in its own way.
class Marker : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return u'*' + QString::fromUtf8(source);
    }
};

bool isSecretIn(const QObject *object, const QString &secret)
{
    const QMetaObject *meta = object->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        if (meta->property(i).read(object).toString().contains(secret)) {
            return true;
        }
    }
    return false;
}

} // namespace

class TestNumpad : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void entersByTap_data();
    void entersByTap();
    void entersByKeyboard_data();
    void entersByKeyboard();
    void showsKeysThatAreOfUse_data();
    void showsKeysThatAreOfUse();
    void leavingRestores();
    void unitKeysMultiplyExactly_data();
    void unitKeysMultiplyExactly();
    void unitKeyAloneChangesNothing();
    void followsTheProgramUntilSomethingIsTyped();
    void opensBesideItsField_data();
    void opensBesideItsField();
    void fitsALowScreen_data();
    void fitsALowScreen();
    void holdingRepeatsBackspaceOnly();
    void hidesAPassword();
    void digitsKeyLeavesForTheOtherEditor();
    void keysAreNamedAndTranslated();
    void opensAgainAtOnce();
};

void TestNumpad::entersByTap_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("range");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<Look>("look");
    QTest::addColumn<QString>("result"); // of OK, where it can be tapped
    const int decimal = QvexNumpadDlg::Decimal;
    const QString least = QString::number(std::numeric_limits<qint64>::min());
    const QString most = QString::number(std::numeric_limits<quint64>::max());
    const QString wide = least + u' ' + most;
    QTest::newRow("untouched") << decimal << u"0 10"_s << 2 << u"5"_s << u""_s << Plain
                               << u"5.00"_s;
    QTest::newRow("empty") << decimal << u"0 10"_s << 0 << u"5"_s << u"7c"_s << Plain << u"5"_s;
    QTest::newRow("replaced") << decimal << u"0 50"_s << 0 << u"5"_s << u"42"_s << Plain << u"42"_s;
    QTest::newRow("corrected") << decimal << u"0 50"_s << 0 << u"5"_s << u"43<2[<3"_s << Plain
                               << u"32"_s;
    QTest::newRow("sign, then point")
        << decimal << u"-1 1"_s << 3 << u"0"_s << u"~.125"_s << Plain << u"-0.125"_s;
    QTest::newRow("sign afterwards, twice")
        << decimal << u"-9 9"_s << 0 << u"0"_s << u"5~~~"_s << Plain << u"-5"_s;
    QTest::newRow("may become valid")
        << decimal << u"20 30"_s << 0 << u"25"_s << u"2"_s << Amber << u"25"_s;
    QTest::newRow("too large") << decimal << u"20 30"_s << 0 << u"25"_s << u"31"_s << Red
                               << u"25"_s;
    QTest::newRow("corrected after refusal")
        << decimal << u"20 30"_s << 0 << u"25"_s << u"31<0"_s << Plain << u"30"_s;
    QTest::newRow("smallest") << decimal << wide << 0 << u"1"_s << u"m"_s << Plain << least;
    QTest::newRow("largest") << decimal << wide << 0 << u"1"_s << u"M"_s << Plain << most;
    QTest::newRow("15 decimals") << decimal << u"0 1000"_s << 15 << u"0"_s
                                 << u"123.456789012345678"_s << Plain << u"123.456789012345678"_s;
    QTest::newRow("hexadecimal") << int(QvexNumpadDlg::Hexadecimal) << u"0 65535"_s << 0 << u"1"_s
                                 << u"BE0F"_s << Plain << u"BE0F"_s;
    QTest::newRow("binary") << int(QvexNumpadDlg::Binary) << u"0 15"_s << 0 << u"1"_s << u"110"_s
                            << Plain << u"0110"_s;
    QTest::newRow("PAM4") << int(QvexNumpadDlg::CodingPAM4) << u"0 255"_s << 0 << u"1"_s << u"32"_s
                          << Plain << u"0032"_s;
}

void TestNumpad::entersByTap()
{
    QFETCH(int, type);
    QFETCH(QString, range);
    QFETCH(int, decimals);
    QFETCH(QString, value);
    QFETCH(QString, taps);
    QFETCH(Look, look);
    QFETCH(QString, result);
    Bench bench(type);
    bench.setField(range, decimals, value);
    const QString before = bench.numpad.text();
    bench.numpad.open();
    QVERIFY(bench.numpad.findChild<QLabel *>(u"NumpadOldValue"_s)->text().contains(before));
    bench.tapKeys(taps);
    QCOMPARE(bench.look(), look);
    QVERIFY(look == Plain || !bench.reason().isEmpty());
    QCOMPARE(bench.key(u"NumpadOk"_s)->isEnabled(), look == Plain);
    tap(bench.key(u"NumpadOk"_s));
    QCOMPARE(bench.numpad.isVisible(), look != Plain);
    QCOMPARE(bench.numpad.text(), result);
}

void TestNumpad::entersByKeyboard_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");
    QTest::newRow("typed") << u""_s << u"-12.5"_s << u"-12.50"_s;
    QTest::newRow("typed like in Germany") << u""_s << u"12,5"_s << u"12.50"_s;
    QTest::newRow("sign at the end") << u""_s << u"12-"_s << u"-12.00"_s;
    QTest::newRow("pasted") << u" 1 234,5\n"_s << u""_s << u"1234.50"_s;
    QTest::newRow("pasted with a sign") << u"+12"_s << u""_s << u"12.00"_s;
    QTest::newRow("pasted with many zeros") << QString(200, u'0') + u"12"_s << u""_s << u"12.00"_s;
    QTest::newRow("pasted, then typed") << u"-1"_s << u".25"_s << u"-1.25"_s;
    QTest::newRow("pasted in vain") << u"12 apples"_s << u""_s << u"7.00"_s;
    QTest::newRow("out of range") << u""_s << u"-5001"_s << u"7.00"_s;
}

void TestNumpad::entersByKeyboard()
{
    QFETCH(QString, pasted);
    QFETCH(QString, typed);
    QFETCH(QString, result);
    Bench bench;
    bench.setField(u"-5000 5000"_s, 2, u"7"_s);
    bench.numpad.open();
    if (!pasted.isEmpty()) {
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
    }
    if (!typed.isEmpty()) {
        // A key that has the focus passes on what it has no use for.
        QTest::keyClicks(QApplication::focusWidget(), typed.first(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(!bench.entry()->hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), typed.sliced(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(bench.numpad.text(), result);
}

void TestNumpad::showsKeysThatAreOfUse_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("range");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("there");
    QTest::addColumn<QString>("missing");
    QTest::newRow("integer") << 0 << u"0 10"_s << 0 << u"0 9 Minimum"_s
                             << u"Sign Point A Default"_s;
    QTest::newRow("fraction") << 0 << u"-1 1"_s << 2 << u"Sign Point 9"_s << u"A"_s;
    QTest::newRow("hexadecimal") << 1 << u"0 10"_s << 0 << u"9 A F"_s << u"Sign Point"_s;
    QTest::newRow("binary") << 2 << u"0 10"_s << 0 << u"0 1"_s << u"2 A Point"_s;
    QTest::newRow("password") << 7 << u"0 10"_s << 0 << u"0 9 Clear"_s << u"A Minimum Sign"_s;
    QTest::newRow("base 4") << 11 << u"0 10"_s << 0 << u"0 3"_s << u"4 Point"_s;
}

void TestNumpad::showsKeysThatAreOfUse()
{
    QFETCH(int, type);
    QFETCH(QString, range);
    QFETCH(int, decimals);
    QFETCH(QString, there);
    QFETCH(QString, missing);
    Bench bench(type);
    bench.setField(range, decimals, u"0"_s);
    bench.numpad.open();
    for (const QString &name : there.split(u' ')) {
        QVERIFY2(bench.key(u"NumpadKey_"_s + name)->isVisible(), qPrintable(name));
    }
    for (const QString &name : missing.split(u' ')) {
        const QPushButton *key = bench.key(u"NumpadKey_"_s + name);
        QVERIFY2(!key || key->isHidden(), qPrintable(name));
    }
}

void TestNumpad::leavingRestores()
{
    Bench bench;
    bench.setField(u"0 10"_s, 0, u"5"_s);
    for (const bool byKey : {false, true}) {
        bench.numpad.open();
        QCOMPARE(bench.entry()->text(), u"5"_s);
        bench.tapKeys(u"7"_s);
        if (byKey) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        } else {
            tap(bench.key(u"NumpadCancel"_s));
        }
        QVERIFY(!bench.numpad.isVisible());
        QCOMPARE(bench.numpad.value(), 5.0);
    }
    bench.numpad.setPreserveText(true);
    bench.numpad.open();
    bench.tapKeys(u"<8"_s);
    tap(bench.key(u"NumpadOk"_s));
    QCOMPARE(bench.numpad.value(), 8.0);
}

void TestNumpad::unitKeysMultiplyExactly_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("result");
    QTest::newRow("milli") << u"500"_s << u"m"_s << u"0.500000"_s;
    QTest::newRow("micro") << u"7"_s << u"\u00b5"_s << u"0.000007"_s;
    QTest::newRow("none") << u"7.25"_s << u""_s << u"7.250000"_s;
    QTest::newRow("kilo of a fraction") << u".0015"_s << u"k"_s << u"1.500000"_s;
    QTest::newRow("too fine") << u"7"_s << u"n"_s << u""_s;
    QTest::newRow("too large") << u"7"_s << u"k"_s << u""_s;
    QTest::newRow("beyond all numbers") << u"18446744073709551615"_s << u"G"_s << u""_s;
    QTest::newRow("no number") << u"-"_s << u"m"_s << u""_s;
}

void TestNumpad::unitKeysMultiplyExactly()
{
    QFETCH(QString, typed);
    QFETCH(QString, prefix);
    QFETCH(QString, result);
    Bench bench;
    bench.setField(u"-10 10"_s, 6, u"2"_s);
    bench.numpad.setUnitKeys(u"V"_s, {u"n"_s, u"\u00b5"_s, u"m"_s, QString(), u"k"_s, u"G"_s});
    for (const bool byKeyboard : {false, true}) {
        bench.numpad.setValue(2);
        bench.numpad.open();
        QTest::keyClicks(QApplication::focusWidget(), typed);
        if (byKeyboard && !prefix.isEmpty()) {
            QTest::keyClicks(QApplication::focusWidget(), prefix);
        } else {
            tap(bench.key(u"NumpadUnit_"_s + prefix));
        }
        QCOMPARE(bench.numpad.isVisible(), result.isEmpty());
        QCOMPARE(bench.look(), result.isEmpty() ? Red : bench.look());
        QCOMPARE(bench.numpad.text(), result.isEmpty() ? u"2.000000"_s : result);
        bench.numpad.reject();
    }
}

void TestNumpad::unitKeyAloneChangesNothing()
{
    Bench bench;
    bench.setField(u"0 100000"_s, 1, u"77.5"_s);
    bench.numpad.setUnitKeys(u"V"_s, {QString(), u"k"_s});
    bench.numpad.open();
    tap(bench.key(u"NumpadUnit_k"_s));
    QVERIFY(bench.numpad.isVisible());
    QCOMPARE(bench.numpad.value(), 77.5);
    QTest::keyClicks(QApplication::focusWidget(), u"77.5k"_s);
    QVERIFY(!bench.numpad.isVisible());
    QCOMPARE(bench.numpad.value(), 77'500.0);
}

void TestNumpad::followsTheProgramUntilSomethingIsTyped()
{
    Bench bench;
    bench.setField(u"0 100"_s, 0, u"5"_s);
    bench.numpad.open();
    bench.numpad.setValue(6);
    QCOMPARE(bench.entry()->text(), u"6"_s);
    bench.tapKeys(u"7"_s);
    bench.numpad.setValue(8);
    QCOMPARE(bench.entry()->text(), u"7"_s);
    tap(bench.key(u"NumpadOk"_s));
    QCOMPARE(bench.numpad.value(), 7.0);
}

void TestNumpad::opensBesideItsField_data()
{
    QTest::addColumn<QRect>("field");
    QTest::newRow("left") << QRect(10, 300, 200, 48);
    QTest::newRow("middle") << QRect(540, 380, 200, 48);
    QTest::newRow("right, above") << QRect(1070, 0, 200, 48);
    QTest::newRow("right, below") << QRect(1070, 750, 200, 48);
    QTest::newRow("wide, above") << QRect(0, 0, 1280, 48);
    QTest::newRow("wide, below") << QRect(0, 750, 1280, 48);
}

void TestNumpad::opensBesideItsField()
{
    QFETCH(QRect, field);
    for (const int type : {0, 1, 2, 7, 11}) {
        Bench bench(type);
        bench.field->setGeometry(field);
        bench.numpad.setDefault_(1);
        bench.numpad.open();
        const QRect border =
            bench.screen.findChild<QWidget *>(u"DlgBorder"_s)->geometry() | bench.numpad.geometry();
        QVERIFY2(!border.intersects(field), qPrintable(QString::number(type)));
        QVERIFY(bench.screen.rect().contains(border));
    }
}

void TestNumpad::fitsALowScreen_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("decimal") << int(QvexNumpadDlg::Decimal);
    QTest::newRow("hexadecimal") << int(QvexNumpadDlg::Hexadecimal);
    QTest::newRow("password") << int(QvexNumpadDlg::Password);
}

void TestNumpad::fitsALowScreen()
{
    QFETCH(int, type);
    QWidget window;
    window.resize(800, 480);
    window.show();
    QvexNumpadDlg numpad(&window, type);
    numpad.open();
    QTRY_VERIFY(numpad.height() >= numpad.minimumSizeHint().height());
    const QList<QPushButton *> keys = numpad.findChildren<QPushButton *>();
    for (const QPushButton *key : keys) {
        if (!key->isVisible()) {
            continue;
        }
        const QRect place(key->mapTo(&window, QPoint()), key->size());
        QVERIFY2(window.rect().contains(place) && key->height() >= 48, qPrintable(key->text()));
        for (const QPushButton *other : keys) {
            const QRect theirs(other->mapTo(&window, QPoint()), other->size());
            QVERIFY(other == key || !other->isVisible() || !place.intersects(theirs));
        }
    }
}

void TestNumpad::holdingRepeatsBackspaceOnly()
{
    Bench bench;
    bench.numpad.open();
    QTest::mousePress(bench.key(u"NumpadKey_1"_s), Qt::LeftButton);
    QTest::qWait(500);
    QTest::mouseRelease(bench.key(u"NumpadKey_1"_s), Qt::LeftButton);
    QCOMPARE(bench.entry()->text(), u"1"_s);
    bench.tapKeys(u"234"_s);
    QTest::mousePress(bench.key(u"NumpadKey_Backspace"_s), Qt::LeftButton);
    QTRY_COMPARE(bench.entry()->text(), QString());
    QTest::mouseRelease(bench.key(u"NumpadKey_Backspace"_s), Qt::LeftButton);
}

void TestNumpad::hidesAPassword()
{
    Bench bench(QvexNumpadDlg::Password);
    bench.numpad.open();
    bench.tapKeys(u"9174<3[[5"_s);
    QCOMPARE(bench.numpad.lineEditText(), u"91573"_s);
    QTest::keyClick(bench.entry(), Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(u"nothing"_s);
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_X, Qt::Key_Z}) {
        QTest::keyClick(bench.entry(), key, Qt::ControlModifier);
    }
    QCOMPARE(QGuiApplication::clipboard()->text(), u"nothing"_s);
    const auto isSeen = [&] {
        const auto parts = bench.numpad.findChildren<QWidget *>();
        return std::any_of(parts.cbegin(), parts.cend(),
                           [](QWidget *part) { return isSecretIn(part, u"91573"_s); });
    };
    QVERIFY(!isSeen());
    const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(bench.entry());
    QVERIFY(!reader->text(QAccessible::Value).contains(u"91573"_s));
    auto *display = bench.numpad.findChild<QAbstractButton *>(u"DisplayPassword"_s);
    tap(display);
    QVERIFY(isSeen());
    tap(display);
    QVERIFY(!isSeen());
    bench.numpad.reject();
    QCOMPARE(bench.numpad.lineEditText(), QString());
}

void TestNumpad::digitsKeyLeavesForTheOtherEditor()
{
    Bench bench;
    bench.numpad.open();
    QVERIFY(bench.key(u"NumpadEditDigits"_s)->isHidden());
    bench.numpad.reject();
    const QSignalSpy spy(&bench.numpad, &QvexNumpadDlg::showEditControllerClicked);
    bench.numpad.open();
    tap(bench.key(u"NumpadEditDigits"_s));
    QCOMPARE(spy.count(), 1);
    QVERIFY(!bench.numpad.isVisible());
}

void TestNumpad::keysAreNamedAndTranslated()
{
    Bench bench;
    bench.setField(u"-1 1"_s, 2, u"0"_s);
    bench.numpad.setUnitKeys(u"V"_s, {u"m"_s, QString()});
    bench.numpad.open();
    const auto keys = bench.numpad.findChildren<QAbstractButton *>();
    for (const QAbstractButton *key : keys) {
        QVERIFY2(!key->accessibleName().isEmpty(), qPrintable(key->objectName()));
        QVERIFY(key->isHidden() || (key->width() >= 64 && key->height() >= 64));
    }
    Marker marker;
    QCoreApplication::installTranslator(&marker);
    QTRY_COMPARE(bench.key(u"NumpadCancel"_s)->text(), u"*Cancel"_s);
    QCOMPARE(bench.key(u"NumpadKey_Backspace"_s)->accessibleName(), u"*Backspace"_s);
    QCoreApplication::removeTranslator(&marker);
}

void TestNumpad::opensAgainAtOnce()
{
    Bench bench;
    QList<qint64> times;
    for (int i = 0; i < 6; ++i) {
        QElapsedTimer timer;
        timer.start();
        bench.numpad.open();
        bench.screen.repaint();
        times.append(timer.elapsed());
        bench.numpad.reject();
    }
    // Others use the machine, too.
    QVERIFY(*std::min_element(times.cbegin() + 1, times.cend()) < 10);
}

QTEST_MAIN(TestNumpad)
#include "tst_numpad.moc"
