#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

#include <input/DecimalNumber.h>
#include <input/NumericField.h>

#include "GuardedTest.h"

using namespace Qt::StringLiterals;

using State = NumericField::Verdict::State;

Q_DECLARE_METATYPE(NumericField)

namespace {

constexpr qint64 Least = std::numeric_limits<qint64>::min();
constexpr quint64 Most = std::numeric_limits<quint64>::max();

DecimalNumber number(const char *text)
{
    return DecimalNumber::fromText(QString::fromLatin1(text)).value();
}

NumericField field(const char *minimum, const char *maximum, int decimals,
                   NumericField::Notation notation = NumericField::Decimal)
{
    NumericField made(notation);
    made.setDecimals(decimals);
    made.setMinimum(number(minimum));
    made.setMaximum(number(maximum));
    return made;
}

} // namespace

/** Numbers as they are edited: exact, and never anything but what is shown. */
class TestNumericField : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsNeverDrift();
    void textsOfDoublesAreTheShortest_data();
    void textsOfDoublesAreTheShortest();
    void everyInteger64Passes_data();
    void everyInteger64Passes();
    void refusesWhatIsNoNumber();
    void endsAtItsLimits();
    void shiftsOnlyWithoutLoss();
    void judgesEntries_data();
    void judgesEntries();
    void writesRadixNotations_data();
    void writesRadixNotations();
    void whatIsShownIsStored();
};

void TestNumericField::stepsNeverDrift()
{
    DecimalNumber sum;
    for (int i = 0; i < 10; ++i) {
        sum = sum + DecimalNumber::fromDouble(0.1);
    }
    QCOMPARE(sum.toText(1), u"1.0"_s);
    QCOMPARE(sum.toDouble(), 1.0);
    const DecimalNumber step = number("0.000000000000001");
    sum = number("0.999999999999995");
    QCOMPARE((sum + step.times(5)).toText(15), u"1.000000000000000"_s);
    QCOMPARE((number("-0.2") + number("0.1").times(3)).toText(1), u"0.1"_s);
}

void TestNumericField::textsOfDoublesAreTheShortest_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("half upward") << 2.5 << 0 << u"3"_s;
    QTest::newRow("half downward") << -2.5 << 0 << u"-3"_s;
    QTest::newRow("as typed, not as stored in binary") << 1.005 << 2 << u"1.01"_s;
    QTest::newRow("no negative zero") << -0.004 << 2 << u"0.00"_s;
    QTest::newRow("large") << 1e18 << 0 << u"1000000000000000000"_s;
    QTest::newRow("small") << 1e-15 << 15 << u"0.000000000000001"_s;
    QTest::newRow("beyond") << 1e300 << 0 << u"18446744073709551616"_s;
    QTest::newRow("not a number") << std::nan("") << 1 << u"0.0"_s;
}

void TestNumericField::textsOfDoublesAreTheShortest()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QTEST(DecimalNumber::fromDouble(value).toText(decimals), "text");
}

void TestNumericField::everyInteger64Passes_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("least signed") << QString::number(Least);
    QTest::newRow("most signed") << QString::number(std::numeric_limits<qint64>::max());
    QTest::newRow("most unsigned") << QString::number(Most);
    QTest::newRow("not in a double") << u"9007199254740993"_s;
    QTest::newRow("minus one") << u"-1"_s;
}

void TestNumericField::everyInteger64Passes()
{
    QFETCH(QString, text);
    NumericField edited = field("0", "0", 0);
    edited.setMinimum(DecimalNumber::fromInt(Least));
    edited.setMaximum(DecimalNumber::fromUnsigned(Most));
    QVERIFY(edited.setText(text));
    QCOMPARE(edited.text(), text);
    if (text.startsWith(u'-')) {
        QCOMPARE(edited.value().toInt(), text.toLongLong());
        QCOMPARE(edited.value().toUnsigned(), 0U);
    } else {
        QCOMPARE(edited.value().toUnsigned(), text.toULongLong());
    }
}

void TestNumericField::refusesWhatIsNoNumber()
{
    for (const QString &text :
         {u""_s, u"."_s, u"-"_s, u"1.2.3"_s, u"1e5"_s, u"--1"_s, u"٣"_s, u"1 0"_s,
          u"18446744073709551617"_s, u"99999999999999999999999999999999999999999999"_s,
          u"0.0000000000000000001"_s}) {
        QVERIFY2(!DecimalNumber::fromText(text), qPrintable(text));
    }
    QCOMPARE(number("+1.50").toText(2), u"1.50"_s);
    QCOMPARE(number(".5").toText(1), u"0.5"_s);
}

void TestNumericField::endsAtItsLimits()
{
    const DecimalNumber most = DecimalNumber::fromDouble(1e30);
    QCOMPARE(most + most, most);
    QCOMPARE(most.times(-1'000'000'000), -most);
    QCOMPARE((-most - most).toText(0), u"-18446744073709551616"_s);
    QCOMPARE(most.toInt(), std::numeric_limits<qint64>::max());
    QCOMPARE(most.toUnsigned(), Most);
}

void TestNumericField::shiftsOnlyWithoutLoss()
{
    QCOMPARE(number("2.5").shifted(3).value().toText(0), u"2500"_s);
    QCOMPARE(number("2.5").shifted(-12).value().toText(15), u"0.000000000002500"_s);
    QVERIFY(!number("0.000000000000000001").shifted(-1));
    QVERIFY(!number("10000000000").shifted(12));
}

void TestNumericField::judgesEntries_data()
{
    QTest::addColumn<NumericField>("edited");
    QTest::addColumn<QString>("text");
    QTest::addColumn<State>("state");
    constexpr State refused = NumericField::Verdict::Refused;
    constexpr State unfinished = NumericField::Verdict::Unfinished;
    constexpr State valid = NumericField::Verdict::Valid;
    const auto row = [](const NumericField &edited, const QString &text, State state) {
        QTest::addRow("%s to %s: \"%s\"", qPrintable(edited.textOf(edited.minimum())),
                      qPrintable(edited.textOf(edited.maximum())), qPrintable(text))
            << edited << text << state;
    };
    const NumericField percent = field("0", "100", 2);
    row(percent, u""_s, unfinished);
    row(percent, u"."_s, unfinished);
    row(percent, u"-"_s, refused);
    row(percent, u"12,5"_s, valid);
    row(percent, u"1 00"_s, valid);
    row(percent, u"1.234"_s, refused);
    row(percent, u"100.01"_s, refused);
    row(percent, u"1.2.3"_s, refused);
    row(percent, u"1x"_s, refused);
    row(percent, u"+1"_s, valid);
    row(percent, u"+-1"_s, refused);
    const NumericField port = field("1024", "65535", 0);
    row(port, u"1"_s, unfinished);
    row(port, u"102"_s, unfinished);
    row(port, u"1023"_s, unfinished); // 10 230
    row(port, u"7000"_s, valid);
    row(port, u"70000"_s, refused);
    row(port, u"0"_s, unfinished);
    row(port, u"1."_s, refused);
    const NumericField below = field("-200", "-50.5", 1);
    row(below, u"-5"_s, unfinished);
    row(below, u"-50"_s, unfinished); // -50.5
    row(below, u"-50.4"_s, refused);
    row(below, u"60"_s, unfinished); // the sign may come last
    row(below, u"-201"_s, refused);
    row(field("0.125", "9.996", 2), u"10.00"_s, valid); // the bound as it is shown
    row(field("0.125", "9.996", 2), u"10.01"_s, refused);
    const NumericField byte = field("16", "255", 0, NumericField::Hexadecimal);
    row(byte, u"f"_s, unfinished);
    row(byte, u"Fa"_s, valid);
    row(byte, u"100"_s, refused);
    row(byte, u"-1"_s, refused);
    row(byte, u"G"_s, refused);
    row(field("0", "15", 0, NumericField::CodingPam4), u"32"_s, valid);
    row(field("0", "15", 0, NumericField::CodingPam4), u"4"_s, refused);
}

void TestNumericField::judgesEntries()
{
    QFETCH(NumericField, edited);
    QFETCH(QString, text);
    QFETCH(State, state);
    const NumericField::Verdict verdict = edited.check(text);
    QVERIFY2(verdict.state == state, qPrintable(verdict.reason));
    QCOMPARE(verdict.reason.isEmpty(), state == NumericField::Verdict::Valid);
    const DecimalNumber before = edited.value();
    QCOMPARE(edited.setText(text), state == NumericField::Verdict::Valid);
    if (state != NumericField::Verdict::Valid) {
        QCOMPARE(edited.value(), before);
    }
}

void TestNumericField::writesRadixNotations_data()
{
    QTest::addColumn<NumericField::Notation>("notation");
    QTest::addColumn<quint64>("maximum");
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("hexadecimal") << NumericField::Hexadecimal << quint64(0xFFFF) << quint64(10)
                                 << u"000A"_s;
    QTest::newRow("binary") << NumericField::Binary << quint64(255) << quint64(5) << u"00000101"_s;
    QTest::newRow("base 4") << NumericField::Base4 << quint64(255) << quint64(0b11100100)
                            << u"3210"_s;
    QTest::newRow("PAM4") << NumericField::CodingPam4 << quint64(255) << quint64(0b11100100)
                          << u"2310"_s;
    QTest::newRow("all bits") << NumericField::Hexadecimal << Most << Most << u"FFFFFFFFFFFFFFFF"_s;
    QTest::newRow("nothing but 0") << NumericField::Binary << quint64(0) << quint64(0) << u"0"_s;
}

void TestNumericField::writesRadixNotations()
{
    QFETCH(NumericField::Notation, notation);
    QFETCH(quint64, maximum);
    QFETCH(quint64, value);
    NumericField edited(notation);
    edited.setMaximum(DecimalNumber::fromUnsigned(maximum));
    edited.setValue(DecimalNumber::fromUnsigned(value));
    QTEST(edited.text(), "text");
    QVERIFY(edited.setText(edited.text()));
    QCOMPARE(edited.value().toUnsigned(), value);
}

void TestNumericField::whatIsShownIsStored()
{
    QCOMPARE(field("-9.994", "1", 2).digits(), 3);
    QCOMPARE(field("0", "9.996", 2).digits(), 4);
    QRandomGenerator random(7);
    for (int i = 0; i < 20'000; ++i) {
        NumericField edited = field("-1000.125", "1000.125", random.bounded(16));
        edited.setValue(DecimalNumber::fromDouble((random.generateDouble() - 0.5) * 3000));
        const QString shown = edited.text();
        QCOMPARE(edited.parse(shown), edited.value());
        QCOMPARE(edited.check(shown).state, NumericField::Verdict::Valid);
    }
}

QTEST_GUILESS_MAIN(TestNumericField)
#include "tst_numericfield.moc"
