#pragma once

#include <QString>

#include <optional>

#include "DecimalNumber.h"

class NumericField;

/// The prefixes of units: "p", "n", "µ", "m", "", "k", "M" and "G".
namespace UnitPrefix {

/** The power of ten that a prefix stands for. Nothing for another text. */
std::optional<int> exponentOf(const QString &prefix);

struct Product
{
    std::optional<DecimalNumber> value;
    QString reason; ///< in words, when there is no value
};

/** The value of @p field that a text stands for with a prefix behind it, exactly. */
Product valueOf(const NumericField &field, const QString &text, const QString &prefix);

} // namespace UnitPrefix
