#pragma once

#include <array>

#include <QString>

#include "meteo/UnitTable.h"

namespace zephyrix {

/// The units that weather reports of a country use: one for each quantity that is a setting, in the
/// order of allQuantities.
using UnitSet = std::array<UnitCode, 4>;

/// By the country's two letters ("NO"); degrees Celsius, km/h, mm and hPa for one that has no row.
[[nodiscard]] UnitSet usualUnits(const QString& country);

/// The country of the user's regional conventions, in two letters; empty when they name none.
[[nodiscard]] QString countryOfUser();

}  // namespace zephyrix
