#pragma once

#include <QString>

#include "foundation/Number.h"

namespace zephyrix {

/// A weather symbol for those who show text: one character of Unicode's weather signs, without a
/// variation selector, so that the bar's font decides whether it is coloured. And its kind in one
/// word, for style sheets.
struct BarSymbol {
    QString glyph;  // empty where the symbol shows nothing
    QString kind;   // "clear", "clouds", "rain", "thunderstorm", ...; "none" where it shows nothing
    bool isNight = false;
};

/// Of a symbol code; docs/symbol-codes.md explains the digits.
[[nodiscard]] BarSymbol barSymbol(const Number& code);

}  // namespace zephyrix
