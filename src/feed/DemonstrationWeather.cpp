#include "DemonstrationWeather.h"

#include <algorithm>
#include <cmath>

#include <QDateTime>

#include "DemonstrationAtmosphere.h"
#include "symbolscheme/SymbolScheme.h"
#include "weather/Daylight.h"

namespace zephyrix {

namespace {

using State = DemonstrationAtmosphere::State;

constexpr int forecastDays = 6;
constexpr double hour = 3600.0;

/// The last full hour of the place's clock, whose zone need not be whole hours from UTC.
Instant fullHourBefore(Instant now, const QTimeZone& zone) {
    const double offset = zone.offsetFromUtc(now.toDateTime());
    const double local = now.secondsSince1970() + offset;
    return Instant::fromSecondsSince1970(std::floor(local / hour) * hour - offset);
}

int symbolOf(const State& state, bool daylight) {
    const auto eighths = static_cast<int>(state.cloudCover.value());
    const auto body = daylight ? CelestialBody::Sun : CelestialBody::Moon;
    return static_cast<int>(symbolCode(state.presentWeather, eighths, body));
}

bool isLit(const Scenario& scenario, const Place& place, Instant time) {
    return scenario.light == Scenario::Light::OfThePlace ? isDaylight(place, time)
                                                         : scenario.light == Scenario::Light::Day;
}

Observation observationOf(const State& state, Instant time, bool daylight) {
    return {.time = time,
            .symbol = symbolOf(state, daylight),
            .temperature = state.temperature,
            .dewPoint = state.dewPoint,
            .windDirection = state.windDirection,
            .windSpeed = state.windSpeed,
            .gusts = state.gusts,
            .precipitation = state.precipitation,
            .precipitationPeriod = Hours(1),
            .cloudCover = state.cloudCover,
            .presentWeather = state.presentWeather,
            .pressure = state.pressure};
}

/// The states of a day of the place, at every half hour from its midnight on: so the full hours are
/// among them also on a day on which the clock is moved by half an hour.
std::vector<State> statesOf(QDate date, const QTimeZone& zone,
                            const DemonstrationAtmosphere& atmosphere) {
    const Instant end = Instant::fromDateTime(date.addDays(1).startOfDay(zone));
    std::vector<State> states;
    for (Instant time = Instant::fromDateTime(date.startOfDay(zone)); time < end;
         time = time.addingSeconds(hour / 2.0))
        states.push_back(atmosphere.at(time));
    return states;
}

/// What a day is remembered for: its heaviest precipitation if there was any worth the name, else
/// the middle of its skies.
const State& tellingState(std::vector<State>& states) {
    const auto wettest = std::max_element(
        states.begin(), states.end(),
        [](const State& a, const State& b) { return a.precipitation < b.precipitation; });
    if (wettest->precipitation >= Millimetres(0.5))
        return *wettest;
    const auto middle = states.begin() + static_cast<std::ptrdiff_t>(states.size() / 2);
    std::nth_element(states.begin(), middle, states.end(),
                     [](const State& a, const State& b) { return a.cloudCover < b.cloudCover; });
    return *middle;
}

ForecastDay forecastDay(QDate date, const Place& place, const Scenario& scenario,
                        const DemonstrationAtmosphere& atmosphere) {
    std::vector<State> states = statesOf(date, place.zone, atmosphere);
    const auto [coldest, warmest] = std::minmax_element(
        states.begin(), states.end(),
        [](const State& a, const State& b) { return a.temperature < b.temperature; });
    const Celsius highest = warmest->temperature;
    const Celsius lowest = coldest->temperature;
    const State& telling = tellingState(states);
    const Instant noon =
        Instant::fromDateTime(date.startOfDay(place.zone)).addingSeconds(12 * hour);
    return {.date = date,
            .symbol = symbolOf(telling, isLit(scenario, place, noon)),
            .highest = highest,
            .lowest = lowest};
}

void forgetNumbers(Weather& weather) {
    weather.observation = Observation{.time = weather.observation->time};
    for (ForecastDay& day : *weather.days)
        day = ForecastDay{.date = day.date};
}

}  // namespace

std::optional<Weather> DemonstrationWeather::weatherAt(const Place& place, Instant now) const {
    const DemonstrationAtmosphere atmosphere(place, scenario_);
    const Instant observed = fullHourBefore(now, place.zone);
    Weather weather{.source = QStringLiteral("demonstration"),
                    .observation = observationOf(atmosphere.at(observed), observed,
                                                 isLit(scenario_, place, observed)),
                    .days = std::vector<ForecastDay>(),
                    .validUntil = observed.addingSeconds(hour)};
    const QDate today = now.toDateTime().toTimeZone(place.zone).date();
    for (int i = 0; i < forecastDays; ++i)
        weather.days->push_back(forecastDay(today.addDays(i), place, scenario_, atmosphere));
    switch (scenario_.content) {
        case Scenario::Content::Everything:
            break;
        case Scenario::Content::NumbersMissing:
            forgetNumbers(weather);
            break;
        case Scenario::Content::NoObservation:
            weather.observation.reset();
            break;
        case Scenario::Content::NoForecast:
            weather.days.reset();
            break;
    }
    return weather;
}

}  // namespace zephyrix
