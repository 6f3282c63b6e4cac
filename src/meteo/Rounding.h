#pragma once

#include <QString>

#include "foundation/NumberFormatter.h"

namespace zephyrix {

/// Temperatures: a whole number, halves away from zero, never "-0". Plain digits in every locale.
[[nodiscard]] QString wholeDegrees(double value);

/// Wind speeds, altitudes and minutes: "%0.0f", halves to even on the stored value; small negative
/// values are "-0". Plain digits in every locale.
[[nodiscard]] QString wholeNumber(double value);

/// Pressures, precipitation and hours: halves to even on the shortest decimal text of the value, at
/// the formatter's fraction digits, in the user's locale.
[[nodiscard]] QString decimalNumber(double value, const NumberFormatter& formatter);

}  // namespace zephyrix
