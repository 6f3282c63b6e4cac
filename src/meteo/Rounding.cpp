#include "Rounding.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "foundation/Number.h"

namespace zephyrix {

QString wholeDegrees(double value) {
    return QString::number(Number(std::round(value)).integerValue());
}

QString wholeNumber(double value) {
    // A sign and the 309 digits of the largest double.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 2> digits{};
    char* const begin = digits.data();
    char* const end =
        std::to_chars(begin, begin + digits.size(), value, std::chars_format::fixed, 0).ptr;
    return QString::fromLatin1(begin, end - begin);
}

QString decimalNumber(double value, const NumberFormatter& formatter) {
    return formatter.stringFromNumber(value);
}

}  // namespace zephyrix
