#include "ValidatorRows.h"

#include <QDoubleValidator>
#include <QRegularExpressionValidator>

#include <algorithm>
#include <memory>

#include "harness/Stopwatch.h"
#include "input/QvexExpValidator.h"
#include "input/QvexStepValidator.h"
#include "input/QvexValidator.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int DefaultRounds = 200'000;

/// What is typed on the way to a number, finished or not.
const QStringList Decimals = {u"1"_s,      u"12"_s,    u"12."_s, u"12.5"_s,    u"12.50"_s,
                              u"123.45"_s, u"999.9"_s, u"-1"_s,  u"1000.01"_s, u""_s};
const QStringList Exponents = {u"1.0E+0"_s, u"1.50E+3"_s, u"9.99E-2"_s, u" .  E  "_s, u"5.0E+4"_s};

QRegularExpression decimalExpression()
{
    return QRegularExpression(u"-?[0-9]*\\.?[0-9]*"_s);
}

double validateAll(const QValidator &validator, const QStringList &texts, int rounds)
{
    return secondsOf([&] {
        for (int i = 0; i < rounds; ++i) {
            QString text = texts.at(i % texts.size());
            int pos = int(text.size());
            validator.validate(text, pos);
        }
    });
}

/// What one would take if there were no validators here.
double validateByQt(const QStringList &texts, int rounds)
{
    const QDoubleValidator range(-10, 1000, 2);
    const QRegularExpressionValidator shape(decimalExpression());
    return validateAll(range, texts, rounds) + validateAll(shape, texts, rounds);
}

void addRow(Suite &suite, const QString &name, std::shared_ptr<QValidator> validator,
            const QStringList &texts, int rounds)
{
    Comparison comparison;
    comparison.name = u"validating by "_s + name;
    comparison.work = {double(rounds), u"ns"_s, 1e-9};
    comparison.subject = {name, [=] { return validateAll(*validator, texts, rounds); }, {}, {}};
    comparison.rivals = {
        {u"Qt's pair"_s, [=] { return validateByQt(texts, rounds); }, Demand::timeAtMost(2), {}}};
    suite.add(comparison);
}

} // namespace

void addValidatorRows(Suite &suite, const ProgramOptions &options)
{
    const int rounds = std::max(1000, static_cast<int>(DefaultRounds * options.scale));
    addRow(suite, u"QvexValidator"_s,
           std::make_shared<QvexValidator>(decimalExpression(), -10.0, 1000.0, 2, 10), Decimals,
           rounds);
    addRow(suite, u"QvexStepValidator"_s,
           std::make_shared<QvexStepValidator>(decimalExpression(), -10.0, 1000.0, 2, 10, 5),
           Decimals, rounds);
    auto exponents = std::make_shared<QvexExpValidator>();
    exponents->setMaximum(1e6);
    exponents->setMinimum(-1e6);
    addRow(suite, u"QvexExpValidator"_s, exponents, Exponents, rounds);
}
