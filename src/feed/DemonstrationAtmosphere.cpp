#include "DemonstrationAtmosphere.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace zephyrix {

namespace {

/// The same for coordinates that agree to a hundredth of a degree, whatever box they came in.
std::uint64_t seedOf(const Place& place) {
    const auto hundredths = [](double degrees) {
        return static_cast<std::uint64_t>(std::llround(degrees * 100.0));
    };
    return mixed(hundredths(place.latitude), hundredths(place.longitude));
}

double rounded(double value, double step) {
    return std::round(value / step) * step;
}

/// To a tenth, as the double that prints with one digit.
double roundedToTenth(double value) {
    return std::round(value * 10.0) / 10.0;
}

/// The daily wave: -1 in the small hours, 1 in the afternoon at 15 h by the sun.
double dailyWaveAt(double longitude, double hours) {
    const double solarHour = hours + longitude / 15.0;
    return std::cos(2.0 * std::numbers::pi * (solarHour - 15.0) / 24.0);
}

enum class Falling : std::uint8_t {
    Rain,
    Sleet,
    Snow,
    RainShower,
    SleetShower,
    SnowShower,
    Thunder
};

/// Synoptic codes for what falls: light, moderate, heavy.
struct FallingCodes {
    Falling what;
    std::array<int, 3> ww;
};

constexpr std::array<FallingCodes, 7> fallingCodes = {{
    {Falling::Rain, {61, 63, 65}},
    {Falling::Sleet, {68, 69, 69}},
    {Falling::Snow, {71, 73, 75}},
    {Falling::RainShower, {80, 81, 82}},
    {Falling::SleetShower, {83, 84, 84}},
    {Falling::SnowShower, {85, 86, 86}},
    {Falling::Thunder, {95, 95, 97}},
}};

constexpr double moderateFrom = 1.0;  // mm an hour
constexpr double heavyFrom = 4.0;
constexpr int drizzle = 51;
constexpr int fog = 45;
constexpr int mist = 10;
constexpr int squalls = 18;
constexpr int skyUnchanged = 2;

int codeFor(Falling what, double millimetresPerHour) {
    const std::size_t strength = millimetresPerHour >= heavyFrom      ? 2
                                 : millimetresPerHour >= moderateFrom ? 1
                                                                      : 0;
    const auto* const row =
        std::find_if(fallingCodes.begin(), fallingCodes.end(),
                     [what](const FallingCodes& codes) { return codes.what == what; });
    return row->ww.at(strength);
}

Falling fallingAt(double temperature, bool showery, bool thundery) {
    if (thundery)
        return Falling::Thunder;
    if (temperature < 0.3)
        return showery ? Falling::SnowShower : Falling::Snow;
    if (temperature < 2.0)
        return showery ? Falling::SleetShower : Falling::Sleet;
    return showery ? Falling::RainShower : Falling::Rain;
}

}  // namespace

struct DemonstrationAtmosphere::Sky {
    double eighths;
    double millimetresPerHour;
    bool showery;
    bool thundery;
};

struct DemonstrationAtmosphere::Air {
    double temperature;
    double dewPoint;
};

struct DemonstrationAtmosphere::Wind {
    double direction;
    double knots;
    double gusts;
};

DemonstrationAtmosphere::DemonstrationAtmosphere(const Place& place, const Scenario& scenario)
    : scenario_(scenario),
      latitude_(place.latitude),
      longitude_(place.longitude),
      climate_(climateAt(place.latitude)),
      // Quiet in the tropics, lively from the middle latitudes on.
      pressureSwing_(5.0 + 17.0 * std::min(1.0, std::fabs(place.latitude) / 50.0)),
      slowSystems_(mixed(seedOf(place), 1), 96.0),
      fastSystems_(mixed(seedOf(place), 2), 38.0),
      airMass_(mixed(seedOf(place), 3), 130.0),
      clouds_(mixed(seedOf(place), 4), 17.0),
      showers_(mixed(seedOf(place), 5), 7.0),
      dryness_(mixed(seedOf(place), 6), 60.0),
      breeze_(mixed(seedOf(place), 7), 9.0),
      veering_(mixed(seedOf(place), 8), 31.0) {}

/// From -1.3 (a strong high) to 1.3 (a deep low), mostly far from both.
double DemonstrationAtmosphere::storminess(double hours) const {
    return 0.8 * slowSystems_.at(hours) + 0.5 * fastSystems_.at(hours);
}

double DemonstrationAtmosphere::pressure(double hours) const {
    if (scenario_.pressure)
        return scenario_.pressure->value() - 2.0 * storminess(hours);
    return 1014.0 - pressureSwing_ * storminess(hours);
}

double DemonstrationAtmosphere::dayMean(double hours) const {
    if (scenario_.meanTemperature)
        return scenario_.meanTemperature->value() + 2.0 * airMass_.at(3.0 * hours);
    const double changes = 0.25 * pressureSwing_;  // air masses differ where the systems are lively
    return climate_.yearMean + climate_.seasonSwing * seasonAt(latitude_, hours) +
           changes * (airMass_.at(hours) + 0.4 * airMass_.at(3.0 * hours));
}

DemonstrationAtmosphere::Sky DemonstrationAtmosphere::skyAt(double hours, double dayMean) const {
    const double storm = storminess(hours);
    const double afternoon = dailyWaveAt(longitude_, hours);
    Sky sky{};
    sky.showery = dayMean > 14.0 || fastSystems_.at(hours) > slowSystems_.at(hours) + 0.3;
    const double wet = 0.5 * storm + 0.6 * showers_.at(hours) + 0.15 * clouds_.at(hours) +
                       (sky.showery ? 0.12 * afternoon : 0.0);
    constexpr double dryUpTo = 0.38;
    const double warmth = std::clamp(dayMean / 12.0, 0.5, 2.0);  // warm air carries more water
    if (wet > dryUpTo)
        sky.millimetresPerHour = roundedToTenth(9.0 * warmth * std::pow(wet - dryUpTo, 1.5));
    const double covered = 0.5 + 0.42 * storm + 0.38 * clouds_.at(hours);
    sky.eighths = std::round(8.0 * std::clamp(covered, 0.0, 1.0));
    if (sky.millimetresPerHour > 0.0)
        sky.eighths = std::max(sky.eighths, sky.showery ? 5.0 : 7.0);
    sky.thundery = sky.showery && dayMean > 17.0 && sky.millimetresPerHour >= 2.0;
    if (scenario_.cloudCover)
        sky.eighths = scenario_.cloudCover->value();
    if (scenario_.hourlyPrecipitation)
        sky.millimetresPerHour = scenario_.hourlyPrecipitation->value();
    return sky;
}

DemonstrationAtmosphere::Air DemonstrationAtmosphere::airAt(double hours, double dayMean,
                                                            const Sky& sky) const {
    const double clear = 1.0 - sky.eighths / 8.0;
    const double swing = climate_.daySwing * scenario_.dailyWave * (0.35 + 0.65 * clear) *
                         (0.8 + 0.2 * seasonAt(latitude_, hours));
    const double cooledByRain = 0.5 * std::min(sky.millimetresPerHour, 4.0);
    const double temperature = dayMean + swing * dailyWaveAt(longitude_, hours) - cooledByRain;
    // Between soaked and dry air; wet weather soaks it, fog more so.
    const double usual = 1.0 + 6.0 * clear + 2.5 * (1.0 + dryness_.at(hours));
    const bool soaked = sky.millimetresPerHour > 0.0 || scenario_.presentWeather == fog;
    const double spread = soaked ? 0.15 * usual : usual;
    const double dewPoint = std::min(dayMean - spread, temperature - 0.1 * spread);
    return {roundedToTenth(temperature), roundedToTenth(dewPoint)};
}

DemonstrationAtmosphere::Wind DemonstrationAtmosphere::windAt(double hours, const Sky& sky) const {
    const double tendency = pressure(hours + 3.0) - pressure(hours - 3.0);  // hPa in six hours
    const double breeze = 1.0 + breeze_.at(hours);
    double knots = 1.5 + 1.3 * std::fabs(tendency) + 7.0 * std::max(0.0, storminess(hours)) +
                   2.5 * breeze + 1.5 * dailyWaveAt(longitude_, hours);
    if (scenario_.windSpeed)
        knots = scenario_.windSpeed->value() * (0.9 + 0.1 * breeze);
    knots = std::round(std::max(0.0, knots));
    if (knots == 0.0)
        return {0.0, 0.0, 0.0};
    // Falling pressure: a low comes from the west, the wind is from the south; it turns north-west
    // behind it. South of the equator all this is mirrored.
    const double north = 240.0 + 12.0 * std::clamp(tendency, -5.0, 5.0) + 60.0 * veering_.at(hours);
    const double direction = rounded(latitude_ < 0.0 ? 180.0 - north : north, 10.0);
    const double turned = std::fmod(direction + 720.0, 360.0);
    const double gustiness = 1.4 + 0.15 * breeze_.at(hours * 2.0) + (sky.showery ? 0.1 : 0.0);
    const double gusts = knots * gustiness + (sky.thundery ? 12.0 : 0.0);
    return {turned == 0.0 ? 360.0 : turned, knots, std::round(gusts)};
}

int DemonstrationAtmosphere::presentWeather(const Sky& sky, const Air& air,
                                            const Wind& wind) const {
    if (scenario_.presentWeather)
        return *scenario_.presentWeather;
    if (sky.millimetresPerHour > 0.0) {
        const bool fine = sky.millimetresPerHour < 0.3 && !sky.showery && air.temperature > 2.0;
        return fine ? drizzle
                    : codeFor(fallingAt(air.temperature, sky.showery, sky.thundery),
                              sky.millimetresPerHour);
    }
    const double spread = air.temperature - air.dewPoint;
    if (spread < 0.6 && wind.knots < 5.0)
        return fog;
    if (spread < 1.2 && wind.knots < 8.0)
        return mist;
    return wind.gusts >= 41.0 ? squalls : skyUnchanged;
}

DemonstrationAtmosphere::State DemonstrationAtmosphere::at(Instant time) const {
    const double hours = time.secondsSince1970() / 3600.0;
    const double mean = dayMean(hours);
    const Sky sky = skyAt(hours, mean);
    const Air air = airAt(hours, mean, sky);
    const Wind wind = windAt(hours, sky);
    return {Celsius(air.temperature),
            Celsius(air.dewPoint),
            Degrees(wind.direction),
            Knots(wind.knots),
            Knots(wind.gusts),
            Hectopascals(roundedToTenth(pressure(hours))),
            Millimetres(sky.millimetresPerHour),
            Eighths(sky.eighths),
            presentWeather(sky, air, wind)};
}

}  // namespace zephyrix
