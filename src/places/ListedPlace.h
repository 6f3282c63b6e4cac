#pragma once

#include <cstdint>

#include <QString>

#include "model/Coordinate.h"
#include "model/LocationResult.h"

namespace zephyrix {

/// A place of the list, in one language.
struct ListedPlace {
    std::int64_t uid;  // the list's own number of it, at least 1
    QString name;      // "Tromsø"; in the list's own writing where the language has no other
    Coordinate coordinate;
    QString zone;              // "Europe/Oslo"
    QString countryCode;       // "NO"
    QString country;           // "Norway"
    QString province;          // "Troms og Finnmark", in English; empty where the list names none
    std::int64_t inhabitants;  // 0 where the number is not known
};

/// The place as the settings keep it.
[[nodiscard]] LocationResult locationOf(const ListedPlace& place);

/// Province and country, as far as they say more than the name: "Troms og Finnmark, Norway".
[[nodiscard]] QString areaOf(const ListedPlace& place);

/// Who made the list, and under which licence it may be used.
inline constexpr QLatin1String placesAttribution("GeoNames (geonames.org), CC BY 4.0");

}  // namespace zephyrix
