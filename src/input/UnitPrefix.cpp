#include "UnitPrefix.h"

#include <QCoreApplication>
#include <QHash>

#include "NumericField.h"

using namespace Qt::StringLiterals;

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(UnitPrefix)
};

} // namespace

namespace UnitPrefix {

std::optional<int> exponentOf(const QString &prefix)
{
    static const QHash<QString, int> exponents {
        {u"p"_s, -12},  {u"n"_s, -9}, {u"\u00b5"_s, -6}, {u"m"_s, -3},
        {QString(), 0}, {u"k"_s, 3},  {u"M"_s, 6},       {u"G"_s, 9},
    };
    const auto found = exponents.constFind(prefix);
    return found == exponents.cend() ? std::nullopt : std::optional(*found);
}

Product valueOf(const NumericField &field, const QString &text, const QString &prefix)
{
    const auto number = field.parse(text);
    if (!number) {
        return {{}, Words::tr("Enter a number before the unit")};
    }
    const auto product = number->shifted(exponentOf(prefix).value_or(0));
    if (!product || !product->fits(field.decimals())) {
        return {{}, Words::tr("Too many digits for this unit")};
    }
    const auto verdict = field.check(product->toText(field.decimals()));
    if (verdict.state != NumericField::Verdict::Valid) {
        return {{}, verdict.reason};
    }
    return {product, {}};
}

} // namespace UnitPrefix
