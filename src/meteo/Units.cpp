#include <cmath>

#include "MeteoMapping.h"
#include "foundation/Localized.h"

namespace zephyrix {

namespace {

constexpr bool codesArePlaces() {
    for (const QuantityUnits& quantity : allQuantities) {
        UnitCode place = 0;
        for (const Unit& unit : quantity.units) {
            if (unit.code != place++)
                return false;
        }
    }
    return true;
}

static_assert(codesArePlaces(), "units are found by their code");

/// As it stands, whatever the language.
QString unlocalized(QStringView text) {
    return QString::fromRawData(text.data(), text.size());
}

const Unit& temperatureUnit(UnitCode unit) {
    const Unit* known = unitWithCode(temperatureUnits, unit);
    return known == nullptr ? temperatureUnits[unitcode::celsius] : *known;
}

/// Speed in the unit for one knot, by code. Metres per second are rounded (not 0.5144) on purpose:
/// everything that shows them counts on the same figure. The place of Beaufort is not used.
constexpr std::array windFactors{0.0, 1.0, 1.852, 0.52, 1.15077945};

/// The highest speed of each force in knots, from force 1 to force 11.
constexpr std::array<double, 11> upperKnots{3, 6, 10, 15, 21, 27, 33, 40, 47, 55, 63};

double beaufortFromKnots(double knots) {
    if (std::isnan(knots) || knots < 0.0)
        return MeteoMapping::missingValue;
    if (knots < 1.0)
        return 0.0;
    double force = 1.0;
    for (const double upper : upperKnots) {
        if (knots <= upper)
            return force;
        force += 1.0;
    }
    return force;
}

double knotsFromBeaufort(double force) {
    if (std::isnan(force) || force < 0.0)
        return MeteoMapping::missingValue;
    double upperForce = 1.0;
    for (const double upper : upperKnots) {
        if (force <= upperForce)
            return upper;
        upperForce += 1.0;
    }
    return force <= upperForce ? MeteoMapping::missingValue : upperKnots.back();
}

bool isWindFactor(UnitCode unit) {
    return unit > unitcode::beaufort && unitWithCode(windUnits, unit) != nullptr;
}

}  // namespace

QString MeteoMapping::tempUnitForUnit(UnitCode unit) {
    return localized(temperatureUnit(unit).text);
}

QString MeteoMapping::accessibleTempUnitForUnit(UnitCode unit) {
    return localized(temperatureUnit(unit).spoken);
}

QString MeteoMapping::windUnitForUnit(UnitCode unit) {
    const Unit* known = unitWithCode(windUnits, unit);
    return known == nullptr ? unlocalized(windUnits[unitcode::knots].text) : localized(known->text);
}

QString MeteoMapping::pressureUnitForUnit(UnitCode unit) {
    const Unit* known = unitWithCode(pressureUnits, unit);
    return known == nullptr ? unlocalized(pressureUnits[unitcode::hectopascal].text)
                            : localized(known->text);
}

QString MeteoMapping::precipitationUnitForUnit(UnitCode unit) {
    return localized(
        precipitationUnits[unit == unitcode::inches ? unitcode::inches : unitcode::millimetres]
            .text);
}

QString MeteoMapping::altitudeUnitForUnit(UnitCode unit) {
    return localized(
        altitudeUnits[unit == unitcode::feet ? unitcode::feet : unitcode::metres].text);
}

double MeteoMapping::celsiusToFahrenheit(double celsius) {
    return celsius == missingValue ? missingValue : celsius * 9.0 / 5.0 + 32.0;
}

double MeteoMapping::fahrenheitToCelsius(double fahrenheit) {
    return fahrenheit == missingValue ? missingValue : (fahrenheit - 32.0) * 5.0 / 9.0;
}

double MeteoMapping::celsiusToKelvin(double celsius) {
    return celsius == missingValue ? missingValue : celsius - 273.15;
}

double MeteoMapping::kelvinToCelsius(double kelvin) {
    return kelvin == missingValue ? missingValue : kelvin + 273.15;
}

double MeteoMapping::hPaToInHg(double hPa) {
    return hPa / 33.86389;
}

double MeteoMapping::hPaToTorr(double hPa) {
    return hPa * 0.75006168270417;
}

double MeteoMapping::mmToInch(double mm) {
    return mm * 0.0393700787402;
}

double MeteoMapping::metersToFeet(double meters) {
    return meters * 3.28083989501312;
}

double MeteoMapping::kmToMiles(double km) {
    return km / 1.609344;
}

double MeteoMapping::mapTemperature(double value, UnitCode unitIn, UnitCode unitOut) {
    if (value == missingValue)
        return missingValue;
    const double celsius = unitIn == unitcode::kelvin       ? kelvinToCelsius(value)
                           : unitIn == unitcode::fahrenheit ? fahrenheitToCelsius(value)
                                                            : value;
    return unitOut == unitcode::kelvin       ? celsiusToKelvin(celsius)
           : unitOut == unitcode::fahrenheit ? celsiusToFahrenheit(celsius)
                                             : celsius;
}

double MeteoMapping::mapKnotsToUnit(UnitCode unit, double knots) {
    if (knots == missingValue)
        return missingValue;
    if (unit == unitcode::beaufort)
        return beaufortFromKnots(knots);
    return isWindFactor(unit) ? knots * windFactors[static_cast<std::size_t>(unit)] : knots;
}

double MeteoMapping::mapUnitToKnots(UnitCode unit, double speed) {
    if (speed == missingValue)
        return missingValue;
    if (unit == unitcode::beaufort)
        return knotsFromBeaufort(speed);
    return isWindFactor(unit) ? speed / windFactors[static_cast<std::size_t>(unit)] : speed;
}

double MeteoMapping::mapHpaToUnit(UnitCode unit, double hPa) {
    return unit == unitcode::inchesOfMercury ? hPaToInHg(hPa)
           : unit == unitcode::torr          ? hPaToTorr(hPa)
                                             : hPa;
}

double MeteoMapping::mapMMToUnit(UnitCode unit, double mm) {
    return unit == unitcode::inches ? mmToInch(mm) : mm;
}

double MeteoMapping::mapMetersToUnit(UnitCode unit, double meters) {
    return unit == unitcode::feet ? metersToFeet(meters) : meters;
}

}  // namespace zephyrix
