#pragma once

#include <span>

#include <QByteArray>
#include <QString>

#include "Place.h"
#include "ReadJson.h"
#include "Weather.h"

namespace zephyrix {

/// At most so many requests in any period of this length.
struct RequestLimit {
    int requests;
    double seconds;
};

/// What is to be known about a public weather service before it is asked.
struct ServiceTerms {
    const char* id;       // "open-meteo": as options, settings, folders and log lines call it
    const char* name;     // "Open-Meteo": as people call it
    const char* licence;  // the line that is shown with its weather
    const char* url;      // for people
    const char* address;  // what its requests begin with, up to the first "/" behind the host
    std::span<const RequestLimit> limits;
    double holdsFor;            // seconds for which an answer is better than none
    bool wantsContact = false;  // whether it refuses clients that do not say whose they are
};

/// One public weather service: what to ask it, and how to read what it answers. Knows nothing of
/// networks and has no state; any thread.
class WeatherService {
  public:
    WeatherService() = default;
    virtual ~WeatherService() = default;
    WeatherService(const WeatherService&) = delete;
    WeatherService& operator=(const WeatherService&) = delete;

    [[nodiscard]] virtual const ServiceTerms& terms() const = 0;

    /// Whether it tells the days to come, and not only what is observed now.
    [[nodiscard]] virtual bool forecasts() const { return true; }

    /// Whether it has weather for a place at all.
    [[nodiscard]] virtual bool covers(const Place& /*place*/) const { return true; }

    /// Whether the place lies where this service is at its best.
    [[nodiscard]] virtual bool isAtHome(const Place& /*place*/) const { return false; }

    /// What is asked for, from the path on: "v1/forecast?latitude=...".
    [[nodiscard]] virtual QString requestFor(const Place& place) const = 0;

    /// The weather that an answer tells, in our units, with `validUntil` where the answer will read
    /// differently later. Values that cannot be are left out. Throws UnreadableAnswer when there
    /// is no temperature, or nothing near the time `now`.
    [[nodiscard]] virtual Weather read(const QByteArray& answer, const Place& place,
                                       Instant now) const = 0;

    /// What an error answer says about its reason; empty when it does not.
    [[nodiscard]] virtual QString reasonIn(const QByteArray& /*answer*/) const { return {}; }
};

/// Degrees with four decimals, some ten metres: more is asked of no service, for its sake (answers
/// can be shared) and for the user's.
[[nodiscard]] QString coordinateText(double degrees);

/// The observation as this program shows it: the symbol from weather, clouds and the sun over the
/// place; wind direction 0 when calm and else 1 to 360; gusts not below the wind and a dew point
/// not above the temperature, as models give them at times. Throws UnreadableAnswer without a
/// temperature.
[[nodiscard]] Observation completed(Observation observation, const Place& place);

/// The symbol of a forecast day: with the sun, but where it does not rise on that day. No eighths:
/// no cloud report.
[[nodiscard]] int symbolOfDay(int presentWeather, std::optional<Eighths> cloudCover,
                              const Place& place, QDate date);

/// Days that are shown: today and the five that follow.
inline constexpr int shownDays = 6;

/// The day at a place.
[[nodiscard]] QDate dateAt(const Place& place, Instant time);

}  // namespace zephyrix
