#pragma once

#include <QPalette>
#include <QString>

#include "NumericField.h"

/// The numpad's style sheets.
namespace NumpadStyle {

QString panel(const QPalette &palette);
/** @p fontSize in pixels. */
QString entry(const QPalette &palette, NumericField::Verdict::State state, int fontSize);
QString mark(NumericField::Verdict::State state);

} // namespace NumpadStyle
