#pragma once

#include <array>
#include <cstdint>
#include <span>

#include <QStringView>

namespace zephyrix {

/// A unit as the user's settings store it: a small integer, read from outside and therefore of any
/// value. Codes outside a quantity's table have the meaning that MeteoMapping gives them.
using UnitCode = std::int64_t;

/// One unit of a quantity. Text and spoken text are English and are the keys of their translations.
struct Unit {
    UnitCode code;
    QStringView text;       // "km/h"
    QStringView spoken;     // "kilometres per hour"
    QStringView spellings;  // what a person may type for it, in lower case, separated by blanks
};

/// The units of one quantity, by code from 0 on.
struct QuantityUnits {
    QStringView name;  // also the settings key, where there is one
    bool isSetting;    // whether the user chooses the unit
    std::span<const Unit> units;
};

namespace unitcode {
inline constexpr UnitCode celsius = 0;
inline constexpr UnitCode fahrenheit = 1;
inline constexpr UnitCode kelvin = 2;
inline constexpr UnitCode beaufort = 0;
inline constexpr UnitCode knots = 1;
inline constexpr UnitCode kilometresPerHour = 2;
inline constexpr UnitCode metresPerSecond = 3;
inline constexpr UnitCode milesPerHour = 4;
inline constexpr UnitCode hectopascal = 0;
inline constexpr UnitCode inchesOfMercury = 1;
inline constexpr UnitCode torr = 2;
inline constexpr UnitCode millimetres = 0;
inline constexpr UnitCode inches = 1;
inline constexpr UnitCode metres = 0;
inline constexpr UnitCode feet = 1;
}  // namespace unitcode

inline constexpr std::array temperatureUnits{
    Unit{unitcode::celsius, u"°C", u"degrees Celsius", u"c °c celsius"},
    Unit{unitcode::fahrenheit, u"°F", u"degrees Fahrenheit", u"f °f fahrenheit"},
    Unit{unitcode::kelvin, u"K", u"Kelvin", u"k kelvin"},
};

inline constexpr std::array windUnits{
    Unit{unitcode::beaufort, u"Bft", u"Beaufort", u"bft beaufort"},
    Unit{unitcode::knots, u"kn", u"knots", u"kn kt kts knots"},
    Unit{unitcode::kilometresPerHour, u"km/h", u"kilometres per hour", u"km/h kmh kph"},
    Unit{unitcode::metresPerSecond, u"m/s", u"metres per second", u"m/s ms mps"},
    Unit{unitcode::milesPerHour, u"mph", u"miles per hour", u"mph"},
};

inline constexpr std::array pressureUnits{
    Unit{unitcode::hectopascal, u"hPa", u"hectopascals", u"hpa mbar hectopascal hectopascals"},
    Unit{unitcode::inchesOfMercury, u"inHg", u"inches of mercury", u"inhg"},
    Unit{unitcode::torr, u"Torr", u"Torr", u"torr mmhg"},
};

inline constexpr std::array precipitationUnits{
    Unit{unitcode::millimetres, u"mm", u"millimetres", u"mm millimetres millimeters"},
    Unit{unitcode::inches, u"in", u"inches", u"in inch inches"},
};

inline constexpr std::array altitudeUnits{
    Unit{unitcode::metres, u"m", u"metres", u"m metres meters"},
    Unit{unitcode::feet, u"ft", u"feet", u"ft feet"},
};

/// Every quantity that has units, in the order in which they are listed to the user.
inline constexpr std::array allQuantities{
    QuantityUnits{u"temperature", true, temperatureUnits},
    QuantityUnits{u"wind", true, windUnits},
    QuantityUnits{u"precipitation", true, precipitationUnits},
    QuantityUnits{u"pressure", true, pressureUnits},
    QuantityUnits{u"altitude", false, altitudeUnits},
};

/// The unit of a code in a quantity's table; null for a code outside of it.
[[nodiscard]] constexpr const Unit* unitWithCode(std::span<const Unit> units, UnitCode code) {
    const bool inTable = code >= 0 && static_cast<std::uint64_t>(code) < units.size();
    return inTable ? &units[static_cast<std::size_t>(code)] : nullptr;
}

}  // namespace zephyrix
