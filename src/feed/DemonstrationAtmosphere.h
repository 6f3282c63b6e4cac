#pragma once

#include "Climate.h"
#include "Scenario.h"
#include "SmoothNoise.h"
#include "foundation/Instant.h"
#include "weather/Place.h"
#include "weather/Quantity.h"

namespace zephyrix {

/// The invented weather of one place at any time: highs and lows pass, and clouds, rain, wind and
/// temperature follow them. A function of the coordinates, the time and the scenario alone, so that
/// it is the same wherever and whenever it is asked.
class DemonstrationAtmosphere {
  public:
    /// All values are rounded as a station reports them. The dew point is never above the
    /// temperature, the gusts are never below the wind.
    struct State {
        Celsius temperature;        // to a tenth
        Celsius dewPoint;           // to a tenth
        Degrees windDirection;      // to ten degrees; 0 when calm
        Knots windSpeed;            // whole
        Knots gusts;                // whole
        Hectopascals pressure;      // to a tenth
        Millimetres precipitation;  // of one hour, to a tenth
        Eighths cloudCover;         // whole
        int presentWeather;         // synoptic code ww
    };

    /// The scenario must outlive this object.
    DemonstrationAtmosphere(const Place& place, const Scenario& scenario);

    [[nodiscard]] State at(Instant time) const;

  private:
    struct Sky;
    struct Air;
    struct Wind;

    [[nodiscard]] double storminess(double hours) const;
    [[nodiscard]] double pressure(double hours) const;
    [[nodiscard]] Sky skyAt(double hours, double dayMean) const;
    [[nodiscard]] double dayMean(double hours) const;
    [[nodiscard]] Air airAt(double hours, double dayMean, const Sky& sky) const;
    [[nodiscard]] Wind windAt(double hours, const Sky& sky) const;
    [[nodiscard]] int presentWeather(const Sky& sky, const Air& air, const Wind& wind) const;

    const Scenario& scenario_;
    double latitude_;
    double longitude_;
    Climate climate_;
    double pressureSwing_;  // hectopascals, from the mean to a strong high or low
    SmoothNoise slowSystems_;
    SmoothNoise fastSystems_;
    SmoothNoise airMass_;
    SmoothNoise clouds_;
    SmoothNoise showers_;
    SmoothNoise dryness_;
    SmoothNoise breeze_;
    SmoothNoise veering_;
};

}  // namespace zephyrix
