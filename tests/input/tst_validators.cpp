#include <QRandomGenerator>
#include <QRegularExpressionValidator>
#include <QTest>

#include <functional>
#include <limits>

#include <input/QvexExpValidator.h>
#include <input/QvexStepValidator.h>
#include <input/QvexValidator.h>

#include "GuardedTest.h"

using namespace Qt::StringLiterals;

using State = QValidator::State;

namespace {

constexpr State Invalid = QValidator::Invalid;
constexpr State Intermediate = QValidator::Intermediate;
constexpr State Acceptable = QValidator::Acceptable;

/// What a validator is told, for it and for the plain reading of the rules beside it.
struct Settings
{
    enum { Float, Signed, Unsigned } flavour = Float;
    double bottom = 0;
    double top = 0;
    qint64 llbottom = 0;
    qint64 lltop = 0;
    int decimals = 0;
    int base = 10;
    int step = 0;
    QString specialText = {};
    QString pattern = u"[-+ 0-9a-fA-F.eEoutx]*"_s;
};

// The rules, read a second time: slowly, and in the order in which they are written down.

bool matches(const char *pattern, const QString &text)
{
    static QHash<const char *, QRegularExpression> expressions;
    QRegularExpression &expression = expressions[pattern];
    if (expression.pattern().isEmpty()) {
        expression.setPattern(QRegularExpression::anchoredPattern(QLatin1String(pattern)));
    }
    return expression.match(text).hasMatch();
}

int decimalsTyped(const QString &text)
{
    const QString fraction = text.section(u'.', 1, -1);
    int count = 0;
    while (count < fraction.size() && fraction.at(count).isDigit()) {
        ++count;
    }
    return count;
}

State plainFloatRange(const Settings &is, const QString &text, bool tolerant)
{
    if (is.bottom >= 0 && text.simplified().startsWith(u'-')) {
        return Invalid;
    }
    if (matches(" *-?\\.? *", text)) {
        return Intermediate;
    }
    const double value = text.toDouble();
    if (text.contains(u'e')) {
        return Invalid;
    }
    if (text.contains(u'.') && decimalsTyped(text) > is.decimals) {
        return Intermediate;
    }
    if (value > is.top && !tolerant) {
        return Invalid;
    }
    if (value > is.top && text != QString::number(is.top, 'f', is.decimals)) {
        return Intermediate;
    }
    if (value < is.bottom && (!tolerant || text != QString::number(is.bottom, 'f', is.decimals))) {
        return Intermediate;
    }
    return Acceptable;
}

template<typename Integer>
State plainIntegerRange(const QString &text, bool isRefused, Integer value, Integer bottom,
                        Integer top)
{
    if (isRefused) {
        return Invalid;
    }
    if (matches(" *-?\\.? *", text)) {
        return Intermediate;
    }
    if (text.contains(u'e') || text.contains(u'.')) {
        return Invalid;
    }
    return value > top || value < bottom ? Intermediate : Acceptable;
}

State plainRange(const Settings &is, const QString &text)
{
    if (is.flavour == Settings::Float) {
        return plainFloatRange(is, text, true);
    }
    if (is.flavour == Settings::Signed) {
        const bool isRefused = is.llbottom >= 0 && text.simplified().startsWith(u'-');
        return plainIntegerRange(text, isRefused, text.toLongLong(), is.llbottom, is.lltop);
    }
    return plainIntegerRange(text, text.contains(u'-'), text.toULongLong(), quint64(is.llbottom),
                             quint64(is.lltop));
}

State plainSpecial(const Settings &is, QString &input, int &pos)
{
    if (is.specialText.isEmpty()) {
        return Intermediate;
    }
    if (input == is.specialText) {
        return Acceptable;
    }
    if (pos > 0 && pos <= input.size()) {
        const QChar typed = input.at(pos - 1);
        if (input.left(pos - 1) + input.mid(pos) == is.specialText && typed.isDigit()) {
            input = typed;
            pos = 1;
        }
    }
    return Intermediate;
}

State combined(std::initializer_list<State> states)
{
    const QList<State> all(states);
    if (all.contains(Invalid)) {
        return Invalid;
    }
    return all.count(Acceptable) == all.size() ? Acceptable : Intermediate;
}

State plainExpression(const Settings &is, QString input)
{
    static QRegularExpressionValidator validator;
    if (validator.regularExpression().pattern() != is.pattern) {
        validator.setRegularExpression(QRegularExpression(is.pattern));
    }
    int pos = 0;
    return validator.validate(input, pos);
}

State plainValidate(const Settings &is, QString &input, int &pos)
{
    if (plainSpecial(is, input, pos) == Acceptable) {
        return Acceptable;
    }
    const QString decimal =
        is.base == 10 ? input : QString::number(input.toULongLong(nullptr, is.base));
    return combined({plainRange(is, decimal), plainExpression(is, input)});
}

State plainStepValidate(const Settings &is, QString &input, int &pos)
{
    if (plainSpecial(is, input, pos) == Acceptable) {
        return Acceptable;
    }
    const QString decimal = is.base == 10 ? input : QString::number(input.toUInt(nullptr, is.base));
    const bool isMultiple = is.step == 0 || input.toUInt(nullptr, is.base) % uint(is.step) == 0;
    return combined({plainFloatRange(is, decimal, false), plainExpression(is, input),
                     isMultiple ? Acceptable : Intermediate});
}

State plainExpValidate(const Settings &is, QString &input, int &)
{
    const bool minusInMantissa = is.bottom < 0 || is.top < 0;
    const bool minusInExponent = is.top > -1.0 && is.bottom < 1.0;
    static const QRegularExpression separator(u"[.Ee]"_s);
    const QStringList parts = input.split(separator);
    if (parts.size() != 3 || parts.at(1).contains(u'+') || parts.at(1).contains(u'-')) {
        return Invalid;
    }
    State state = Acceptable;
    for (int i = 0; i < 3; ++i) {
        const QString digits = QString(parts.at(i)).remove(u' ');
        bool isNumber = false;
        digits.toInt(&isNumber);
        if (isNumber) {
            continue;
        }
        const bool minus = (i == 0 && minusInMantissa) || (i == 2 && minusInExponent);
        const bool isSign = matches(minus ? "[ ]*[+\\-][ ]+" : "[ ]*[+][ ]+", parts.at(i));
        if (!digits.isEmpty() && !isSign) {
            return Invalid;
        }
        state = Intermediate;
    }
    if (state == Intermediate) {
        return Intermediate;
    }
    bool isNumber = false;
    const double value = QString(input).remove(u' ').toDouble(&isNumber);
    if (!isNumber) {
        return Invalid;
    }
    return is.bottom <= value && value <= is.top ? Acceptable : Intermediate;
}

QvexValidator *makeValidator(const Settings &is, QObject *parent)
{
    const QRegularExpression rx(is.pattern);
    QvexValidator *made = nullptr;
    if (is.flavour == Settings::Float) {
        made = new QvexValidator(rx, is.bottom, is.top, is.decimals, is.base, parent);
    } else if (is.flavour == Settings::Signed) {
        made = new QvexValidator(rx, is.llbottom, is.lltop, is.base, parent);
    } else {
        made = new QvexValidator(rx, quint64(is.llbottom), quint64(is.lltop), is.base, parent);
    }
    made->setSpecialText(is.specialText);
    return made;
}

QValidator *makeStepValidator(const Settings &is, QObject *parent)
{
    auto *made = new QvexStepValidator(QRegularExpression(is.pattern), is.bottom, is.top,
                                       is.decimals, is.base, is.step, parent);
    made->setSpecialText(is.specialText);
    return made;
}

QValidator *makeExpValidator(const Settings &is, QObject *parent)
{
    auto *made = new QvexExpValidator(parent);
    made->setMaximum(is.top);
    made->setMinimum(is.bottom);
    return made;
}

/// Something a finger may have typed: mostly numbers, some of them spoilt.
QString randomInput(QRandomGenerator &random, const Settings &is)
{
    static const QString characters = u"0123456789 -+.eEaFx"_s;
    QString text;
    switch (random.bounded(6)) {
    case 0:
        text = QString::number(is.flavour == Settings::Float ? is.top : double(is.lltop), 'f',
                               is.decimals);
        break;
    case 1:
        text = QString::number(random.bounded(3) == 0 ? is.lltop : is.llbottom, is.base);
        break;
    case 2:
        text = is.specialText;
        break;
    case 3:
        text = QString::number(random.generateDouble() * 20 - 5, 'E', random.bounded(4));
        break;
    default:
        break;
    }
    for (int changes = random.bounded(7); changes > 0; --changes) {
        const QChar character = characters.at(random.bounded(characters.size()));
        text.insert(random.bounded(text.size() + 1), character);
    }
    if (!text.isEmpty() && random.bounded(4) == 0) {
        text.remove(random.bounded(text.size()), 1);
    }
    return text;
}

} // namespace

Q_DECLARE_METATYPE(Settings)

/** The validators, against their rules written down a second time and against given cases. */
class TestValidators : public GuardedTest
{
    Q_OBJECT

public:
    enum class Kind { Range, Step, Exponent };
    Q_ENUM(Kind)

private Q_SLOTS:
    void keepTheRules_data();
    void keepTheRules();
    void givenCases_data();
    void givenCases();
    void settingOneBoundKeepsTheOther();
    void maximumAloneNeverForbidsAMinus();
};

void TestValidators::keepTheRules_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Settings>("settings");
    constexpr auto least = std::numeric_limits<qint64>::min();
    constexpr auto most = std::numeric_limits<qint64>::max();
    const auto row = [](const char *name, Kind kind, const Settings &settings) {
        QTest::newRow(name) << kind << settings;
    };
    row("float", Kind::Range, {.bottom = -2.5, .top = 10, .decimals = 2});
    row("float, not negative", Kind::Range,
        {.bottom = 0, .top = 9.999, .decimals = 2, .specialText = u"Auto"_s});
    row("float, bound that rounds upward", Kind::Range,
        {.bottom = 0.125, .top = 9.996, .decimals = 2});
    row("float, narrow expression", Kind::Range,
        {.bottom = -5, .top = 5, .decimals = 3, .pattern = u"-?[0-9]*\\.?[0-9]*"_s});
    row("signed", Kind::Range, {.flavour = Settings::Signed, .llbottom = -100, .lltop = 250});
    row("signed, all 64 bits", Kind::Range,
        {.flavour = Settings::Signed, .llbottom = least, .lltop = most});
    row("unsigned", Kind::Range,
        {.flavour = Settings::Unsigned, .llbottom = 5, .lltop = 300, .specialText = u"x"_s});
    row("unsigned, all 64 bits", Kind::Range,
        {.flavour = Settings::Unsigned, .llbottom = 0, .lltop = -1});
    row("hexadecimal", Kind::Range,
        {.flavour = Settings::Unsigned,
         .llbottom = 16,
         .lltop = 4095,
         .base = 16,
         .pattern = u"[0-9a-fA-F]*"_s});
    row("hexadecimal float", Kind::Range,
        {.bottom = 0, .top = 255, .decimals = 1, .base = 16, .pattern = u"[0-9a-fA-F]*"_s});
    row("step", Kind::Step, {.bottom = -5, .top = 100, .decimals = 1, .step = 5});
    row("step, special text", Kind::Step,
        {.bottom = 0, .top = 10, .decimals = 2, .step = 3, .specialText = u"Auto"_s});
    row("no step, base 4", Kind::Step, {.bottom = 1, .top = 63, .base = 4, .pattern = u"[0-3]*"_s});
    row("exponent", Kind::Exponent, {.bottom = 1e-3, .top = 1e3, .decimals = 2});
    row("exponent, negative", Kind::Exponent, {.bottom = -5e6, .top = -1, .decimals = 2});
    row("exponent, large", Kind::Exponent, {.bottom = 10, .top = 1e9, .decimals = 2});
}

void TestValidators::keepTheRules()
{
    QFETCH(Kind, kind);
    QFETCH(Settings, settings);
    constexpr std::pair<QValidator *(*)(const Settings &, QObject *),
                        State (*)(const Settings &, QString &, int &)>
        readings[] = {{[](const Settings &is, QObject *parent) -> QValidator * {
                           return makeValidator(is, parent);
                       },
                       plainValidate},
                      {makeStepValidator, plainStepValidate},
                      {makeExpValidator, plainExpValidate}};
    const auto &[make, rules] = readings[int(kind)];
    const QValidator *validator = make(settings, this);
    QRandomGenerator random(20261121);
    int seen[3] = {0, 0, 0};
    for (int i = 0; i < 100'000; ++i) {
        const QString typed = randomInput(random, settings);
        const int cursor = random.bounded(int(typed.size()) + 1);
        QString ours = typed;
        QString theirs = typed;
        int ourCursor = cursor;
        int theirCursor = cursor;
        const State state = validator->validate(ours, ourCursor);
        const State expected = rules(settings, theirs, theirCursor);
        if (state != expected || ours != theirs || ourCursor != theirCursor) {
            QFAIL(qPrintable(u"\"%1\", cursor %2: %3 \"%4\", expected %5 \"%6\""_s.arg(typed)
                                 .arg(cursor)
                                 .arg(int(state))
                                 .arg(ours)
                                 .arg(int(expected))
                                 .arg(theirs)));
        }
        ++seen[state];
    }
    QVERIFY2(seen[Invalid] > 100 && seen[Intermediate] > 100 && seen[Acceptable] > 100,
             "the inputs leave a state out");
}

void TestValidators::givenCases_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<QString>("input");
    QTest::addColumn<State>("state");
    const Settings cents = {.bottom = 0, .top = 10, .decimals = 2, .step = 5};
    const Settings byte = {.flavour = Settings::Unsigned, .lltop = 255, .base = 16};
    const Settings exponent = {.bottom = 1e-3, .top = 1e3};
    const auto row = [](Kind kind, const Settings &settings, const QString &input, State state) {
        QTest::addRow("%d: \"%s\"", int(kind), qPrintable(input))
            << kind << settings << input << state;
    };
    for (const QString &nothing : {u""_s, u" . "_s, u"."_s}) {
        row(Kind::Range, cents, nothing, Intermediate);
    }
    row(Kind::Range, cents, u"-"_s, Invalid);
    row(Kind::Range, cents, u"10.5"_s, Intermediate);
    row(Kind::Range, cents, u"1.234"_s, Intermediate);
    row(Kind::Range, cents, u"1e3"_s, Invalid);
    row(Kind::Range, cents, u"5.25"_s, Acceptable);
    row(Kind::Range, cents, u"10.00"_s, Acceptable);
    row(Kind::Step, cents, u"10.5"_s, Invalid);
    row(Kind::Step, cents, u"7"_s, Intermediate);
    row(Kind::Step, cents, u"5"_s, Acceptable);
    row(Kind::Range, byte, u"FF"_s, Acceptable);
    row(Kind::Range, byte, u"100"_s, Intermediate);
    row(Kind::Exponent, exponent, u"1.5E-2"_s, Acceptable);
    row(Kind::Exponent, exponent, u"1.5E"_s, Intermediate);
    row(Kind::Exponent, exponent, u"1.5"_s, Invalid);
    row(Kind::Exponent, exponent, u"1.-5E2"_s, Invalid);
    row(Kind::Exponent, exponent, u"5.0E+4"_s, Intermediate);
    row(Kind::Exponent, exponent, u"1.0E- "_s, Intermediate);
    row(Kind::Exponent, exponent, u"- .0E2"_s, Invalid);
}

void TestValidators::givenCases()
{
    QFETCH(Kind, kind);
    QFETCH(Settings, settings);
    QFETCH(QString, input);
    int pos = int(input.size());
    const QString typed = input;
    const QValidator *validator = kind == Kind::Range ? makeValidator(settings, this)
        : kind == Kind::Step                          ? makeStepValidator(settings, this)
                                                      : makeExpValidator(settings, this);
    QTEST(validator->validate(input, pos), "state");
    QCOMPARE(input, typed);
}

void TestValidators::settingOneBoundKeepsTheOther()
{
    constexpr auto most = std::numeric_limits<quint64>::max();
    QvexValidator validator;
    validator.setRange(quint64(7), most);
    validator.setBottom(quint64(8));
    QCOMPARE(quint64(validator.lltop()), most);
    validator.setRange(-1e30, 1e30, 3);
    QCOMPARE(validator.llbottom(), std::numeric_limits<qint64>::min());
    QCOMPARE(validator.lltop(), std::numeric_limits<qint64>::max());
    validator.setTop(2.9);
    QCOMPARE(validator.bottom(), -1e30);
    QCOMPARE(validator.lltop(), 2);
    QCOMPARE(validator.decimals(), 3);
}

void TestValidators::maximumAloneNeverForbidsAMinus()
{
    QvexExpValidator validator;
    validator.setMinimum(-5);
    validator.setMinimum(1);
    validator.setMaximum(-2);
    validator.setMaximum(10);
    QString input = u"- .1E+0"_s;
    int pos = 0;
    QCOMPARE(validator.validate(input, pos), Intermediate);
    validator.setMinimum(1);
    QCOMPARE(validator.validate(input, pos), Invalid);
}

QTEST_GUILESS_MAIN(TestValidators)
#include "tst_validators.moc"
