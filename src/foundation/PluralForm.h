#pragma once

#include <cstdint>

#include <QString>
#include <QStringView>

namespace zephyrix {

/// The forms that a word behind a number can take: the plural categories of Unicode's locale data.
/// A language uses two to four of them.
enum class PluralForm : std::uint8_t { One, Few, Many, Other };

/// The form that goes with a number as it is shown: decimals count as they are written ("1.0" is
/// not "1"), signs and marks around the digits do not. A text without digits counts as 0; a
/// language without a string table has Other alone.
///
///     pluralForm(u"21", QStringLiteral("ru"))    // One: 21 градус
///     pluralForm(u"-1", QStringLiteral("en"))    // One: -1 degree
///     pluralForm(u"1.5", QStringLiteral("pl"))   // Other: 1,5 stopnia
///
/// It is written down here, below a million, as loading ICU's rules costs a start more than all
/// other texts of the panel together.
[[nodiscard]] PluralForm pluralForm(QStringView shown, const QString& language);

}  // namespace zephyrix
