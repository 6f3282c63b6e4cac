#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <span>

#include <QString>

#include "UnitTable.h"
#include "foundation/Instant.h"
#include "foundation/Number.h"
#include "model/Location.h"

namespace zephyrix {

class Location;
class QKTimeRange;

/// A thing that stands at a place: its coordinate() has latitude and longitude in degrees.
template <typename Thing>
concept HasCoordinate = requires(const Thing& thing) {
    { thing.coordinate().latitude } -> std::convertible_to<double>;
    { thing.coordinate().longitude } -> std::convertible_to<double>;
};

/// Turns the feed's values into the units that the user chose, and into short display texts;
/// derives further quantities from observed ones. Class operations only.
///
/// Values come in base units: degrees Celsius, knots, hectopascal, millimetres, metres, degrees.
/// The value -9999 (missingValue) stands for no value: conversions hand it on where they say so,
/// texts show "-". A formatted text takes a boxed number that may be absent; an absent one acts as
/// 0.
///
/// Unit codes are those of UnitTable.h. A code outside of its table: temperature as Celsius, wind
/// as knots, pressure as hectopascal; for precipitation and altitude all codes but 1 are 0.
///
/// Unit texts, sector names and words are looked up in the string table under their English text.
/// Main thread: the shared number formatters and the list of sector names are not guarded.
class MeteoMapping {
  public:
    MeteoMapping() = delete;

    static constexpr double missingValue = -9999.0;

    // ---- Unit texts ----

    [[nodiscard]] static QString tempUnitForUnit(UnitCode unit);
    /// For screen readers: "degrees Celsius".
    [[nodiscard]] static QString accessibleTempUnitForUnit(UnitCode unit);
    [[nodiscard]] static QString windUnitForUnit(UnitCode unit);
    [[nodiscard]] static QString pressureUnitForUnit(UnitCode unit);
    [[nodiscard]] static QString precipitationUnitForUnit(UnitCode unit);
    [[nodiscard]] static QString altitudeUnitForUnit(UnitCode unit);

    // ---- Conversions ----

    /// The four temperature conversions hand a missing value on.
    [[nodiscard]] static double celsiusToFahrenheit(double celsius);
    [[nodiscard]] static double fahrenheitToCelsius(double fahrenheit);
    /// Subtracts 273.15: the two Kelvin conversions have their signs exchanged, and the pressure
    /// reduction counts on it. Both are deliberate and belong together: 20 gives -253.15.
    [[nodiscard]] static double celsiusToKelvin(double celsius);
    /// Adds 273.15, see celsiusToKelvin().
    [[nodiscard]] static double kelvinToCelsius(double kelvin);

    [[nodiscard]] static double hPaToInHg(double hPa);
    [[nodiscard]] static double hPaToTorr(double hPa);
    [[nodiscard]] static double mmToInch(double mm);
    [[nodiscard]] static double metersToFeet(double meters);
    [[nodiscard]] static double kmToMiles(double km);

    /// Hands a missing value on.
    [[nodiscard]] static double mapTemperature(double value, UnitCode unitIn, UnitCode unitOut);
    /// Hands a missing value on. Beaufort: the force whose class holds the speed; missing for a
    /// negative speed and for not-a-number.
    [[nodiscard]] static double mapKnotsToUnit(UnitCode unit, double knots);
    /// Hands a missing value on. Beaufort: the upper limit of the force's class. Force 0 has that
    /// of force 1, force 12 has none and is missing, and whatever is stronger has that of force 11.
    [[nodiscard]] static double mapUnitToKnots(UnitCode unit, double speed);
    [[nodiscard]] static double mapHpaToUnit(UnitCode unit, double hPa);
    [[nodiscard]] static double mapMMToUnit(UnitCode unit, double mm);
    [[nodiscard]] static double mapMetersToUnit(UnitCode unit, double meters);

    // ---- Formatted texts ----

    /// celsius: "-" when its integer value is -9999. "21°C".
    [[nodiscard]] static QString formattedTempString(const std::optional<Number>& celsius,
                                                     UnitCode unitOut);
    /// knots: "-" when its integer value is negative. "19 km/h".
    [[nodiscard]] static QString formattedWindString(const std::optional<Number>& knots,
                                                     UnitCode unitOut);
    /// hPa: "-" when its integer value is negative. At most one digit after the separator, two for
    /// inches of mercury. "1013.2hPa", "1013.2" with the unit hidden.
    [[nodiscard]] static QString formattedPressureString(const std::optional<Number>& hPa,
                                                         UnitCode unitOut, bool hideUnit = false);
    /// mm: "-" when its integer value is negative. In millimetres, one digit after the separator
    /// and
    /// "<0.1" for a trace; in inches, one or two. "0.4mm", "0.4" with the unit hidden.
    [[nodiscard]] static QString formattedPrecipitationString(const std::optional<Number>& mm,
                                                              UnitCode unitOut,
                                                              bool hideUnit = false);
    /// metres: no value counts as missing. "34 m", "34" with the unit hidden.
    [[nodiscard]] static QString formattedAltitudeString(const std::optional<Number>& metres,
                                                         UnitCode unitOut, bool hideUnit);
    /// No value counts as missing. The unit text of the first call stays for all later ones, until
    /// finalizeStatements(): all callers pass the same. "12h".
    [[nodiscard]] static QString formattedHoursString(const std::optional<Number>& hours,
                                                      const QString& unit);
    /// No value counts as missing. "10min".
    [[nodiscard]] static QString formattedMinString(const std::optional<Number>& minutes,
                                                    const QString& unit);

    // ---- Wind direction and UV index ----

    /// direction: whole degrees where the wind comes from, 990 for a variable one. speed: 0 is
    /// calm. 0 (north) to 15 (north-north-west), variableSector or calmSector. A negative direction
    /// gives a negative index, which has no name.
    [[nodiscard]] static std::int64_t mapWindToSector(std::int64_t direction, std::int64_t speed);
    static constexpr std::int64_t variableSector = -2;
    static constexpr std::int64_t calmSector = -1;
    /// "SW"; 16 is north once more, -2 is "Rot.", every other index "-". The names stay in the
    /// language in which they were first asked for.
    [[nodiscard]] static QString windStringForSector(std::int64_t sector);
    /// "Low" (0 to 2) to "Extreme" (10 to 15); "-" outside of 0 to 15.
    [[nodiscard]] static QString stringForUVIndex(const std::optional<Number>& index);

    // ---- Formulas ----

    /// Degrees Celsius and knots to degrees Celsius. The wind chill index of 2001 of the weather
    /// services of Canada and the United States; up to 4 knots or above 10 degrees the temperature
    /// itself.
    [[nodiscard]] static double windchill(double temperature, double windspeed);
    /// A felt temperature, degrees Celsius: the wind chill below 0, the humidex from 31 on, and a
    /// blend between. Missing when one of the values is missing.
    [[nodiscard]] static double comfortTempWithTemperature(double temperature, double windspeed,
                                                           double dewpoint);
    /// Saturation vapour pressure in hPa over ice (-65 to 0.01 degrees Celsius) or over water (-45
    /// to 100); missing outside. Magnus form with the coefficients of the WMO's guide (CIMO).
    [[nodiscard]] static double e_vap(double temperature, bool ice);
    /// Relative humidity in percent, at most 100, fractions dropped; -9999 when one of the vapour
    /// pressures is missing. Both are taken over ice for a dew point below -45 degrees Celsius.
    [[nodiscard]] static std::int64_t relHumForTemperature(double temperature, double dewPoint);

    /// Station pressure to sea level, hPa. elevation in metres, vaporPressure in hPa, tt in degrees
    /// Celsius, qfe in hPa.
    [[nodiscard]] static double qffForElevationVaporPressure(double elevation, double vaporPressure,
                                                             double tt, double qfe);
    /// The same with the vapour pressure over water at the dew point td, degrees Celsius.
    [[nodiscard]] static double qffForElevationTd(double elevation, double td, double tt,
                                                  double qfe);
    /// Sea level pressure to the station, hPa: the inverse of qffForElevationVaporPressure().
    [[nodiscard]] static double qfeForElevationVaporPressure(double elevation, double vaporPressure,
                                                             double tt, double qff);
    [[nodiscard]] static double qfeForElevationTd(double elevation, double td, double tt,
                                                  double qff);

    /// Great-circle distance in km on a sphere of 6371 km, by the law of cosines. Not-a-number is
    /// possible for points that are equal or opposite.
    template <HasCoordinate From, HasCoordinate To>
    [[nodiscard]] static double distanceFromPoint(const From& from, const To& toPoint) {
        const auto a = from.coordinate();
        const auto b = toPoint.coordinate();
        return greatCircleDistance(a.latitude, a.longitude, b.latitude, b.longitude);
    }

    /// The value at a date on the straight line through the first two values at the first two
    /// timestamps, also outside of them; infinite or not-a-number when the two are equal. Fewer
    /// than two of either are a programming error.
    [[nodiscard]] static double linearInterpolationForDate(Instant date,
                                                           std::span<const double> values,
                                                           std::span<const Instant> timestamps);

    /// Degrees to radians. An angle above 360 is first reduced to above 0 and up to 360; negative
    /// angles are not reduced.
    [[nodiscard]] static double radians(double degrees);

    // ---- Weather in words ----

    /// The sentence for a cloud cover `n` (eighths) and a present-weather code `ww`, by day or by
    /// night, in a language named by its two small letters; every other language is English. An
    /// absent number acts as 0. Nothing when the database has no such row, or cannot be read;
    /// an empty text when the row has none.
    [[nodiscard]] static std::optional<QString> stringForN(const std::optional<Number>& n,
                                                           const std::optional<Number>& ww,
                                                           const QString& language, bool daylight);
    /// The same, by day or by night as it is at the place at a date. Throws NamedException
    /// "NullPhenomenon" of SunCalculations on polar days and nights; the database is not asked
    /// then.
    [[nodiscard]] static std::optional<QString> stringForN(const std::optional<Number>& n,
                                                           const std::optional<Number>& ww,
                                                           const QString& language, Instant date,
                                                           const Location& cityObject);
    /// The text with its first character (UTF-16 unit) in upper case, whatever the user's language;
    /// nothing for an empty text.
    [[nodiscard]] static std::optional<QString> capitalizeFirst(const QString& text);

    // ---- Sun time ----

    /// Seconds between sunrise and sunset inside of a range of at most a day; a missing end counts
    /// as 1970. The place needs coordinates and zone. Throws NamedException
    /// "IntervalTooLongException", with the range under "range", for more than 86400 seconds (a day
    /// of 25 hours, too), and "NullPhenomenon" on days of polar day or night. Any thread.
    [[nodiscard]] static double astronomicSuntimeForRange(const QKTimeRange& range,
                                                          const Location& location);
    /// An estimate of the seconds of sunshine: the above, less an eighth for each eighth of cloud
    /// (n); all of it up to one eighth, nothing from seven on. Throws as above.
    [[nodiscard]] static double sunTimeForRange(const QKTimeRange& range, double n,
                                                const Location& location);

    // ---- Shared objects ----

    /// Lets go of the prepared text lookup and of the shared number formatters. All are made anew
    /// at their next use, the formatters in the locale of then. For a host that wants to free
    /// resources.
    static void finalizeStatements();

  private:
    static void dropNumberFormatters();
    static void dropTextLookup();
    [[nodiscard]] static double greatCircleDistance(double latitude1, double longitude1,
                                                    double latitude2, double longitude2);
};

}  // namespace zephyrix
