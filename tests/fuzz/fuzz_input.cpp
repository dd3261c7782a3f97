// What is typed or pasted into a field for numbers.

#include <QRegularExpression>

#include <cstdint>
#include <cstdlib>

#include "input/NumericField.h"
#include "input/QvexExpValidator.h"
#include "input/QvexStepValidator.h"
#include "input/QvexValidator.h"
#include "input/ThousandSeparators.h"

using namespace Qt::StringLiterals;

namespace {

void demand(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

NumericField fieldOf(uint8_t choice)
{
    constexpr NumericField::Notation notations[] = {
        NumericField::Decimal, NumericField::Hexadecimal, NumericField::Binary,
        NumericField::Base4,   NumericField::CodingPam4,  NumericField::Password};
    NumericField field(notations[choice % std::size(notations)]);
    field.setDecimals(choice >> 4);
    if (choice & 8) {
        field.setMinimum(DecimalNumber::fromDouble(-1000.125));
        field.setMaximum(DecimalNumber::fromDouble(99'999.996));
    }
    return field;
}

/// A valid text becomes the value, as it is shown; any other one changes nothing.
void tryField(uint8_t choice, const QString &text)
{
    NumericField field = fieldOf(choice);
    const DecimalNumber before = field.value();
    const NumericField::Verdict verdict = field.check(text);
    const bool isValid = verdict.state == NumericField::Verdict::Valid;
    demand(isValid == verdict.reason.isEmpty());
    const bool isTaken = field.setText(text);
    demand(!isTaken || isValid);
    demand(isTaken || field.value() == before);
    if (field.notation() != NumericField::Password) {
        demand(isTaken == isValid);
        demand(field.parse(field.text()) == field.value());
    }
    if (isTaken && field.notation() == NumericField::Decimal) {
        const QString shown = ThousandSeparators::added(field.text());
        demand(ThousandSeparators::removed(shown) == field.text());
        demand(field.parse(shown) == field.value());
    }
}

void tryValidator(const QValidator &validator, const QString &text)
{
    QString input = text;
    int pos = int(text.size());
    demand(validator.validate(input, pos) >= QValidator::Invalid);
    demand(input == text && pos == text.size());
}

} // namespace

extern "C" __attribute__((visibility("default"))) int LLVMFuzzerTestOneInput(const uint8_t *data,
                                                                             size_t size)
{
    static const QRegularExpression anything(u".*"_s);
    static const QvexValidator range(anything, -10.0, 1000.0, 3, 10);
    static const QvexValidator integer(anything, qint64(-10), qint64(1000), 10);
    static const QvexValidator hexadecimal(anything, quint64(1), ~quint64(0), 16);
    static const QvexStepValidator step(anything, -10.0, 1000.0, 2, 4, 5);
    static const QvexExpValidator exponent;
    if (size == 0) {
        return 0;
    }
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data) + 1,
                                           static_cast<qsizetype>(size - 1));
    tryField(data[0], text);
    for (const QValidator *validator :
         {static_cast<const QValidator *>(&range), static_cast<const QValidator *>(&integer),
          static_cast<const QValidator *>(&hexadecimal), static_cast<const QValidator *>(&step),
          static_cast<const QValidator *>(&exponent)}) {
        tryValidator(*validator, text);
    }
    return 0;
}
