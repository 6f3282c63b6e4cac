#include "AutomaticWeather.h"

#include <algorithm>

namespace zephyrix {

namespace {

/// Puts the observation of one source on the forecast of another.
Weather combined(const Weather& observed, Weather forecast) {
    forecast.source = QStringLiteral("%1, %2").arg(observed.source, forecast.source);
    forecast.licence = QStringLiteral("%1; %2").arg(observed.licence, forecast.licence);
    forecast.observation = observed.observation;
    // The older of the two tells how old the document is.
    forecast.fetched = std::min(observed.fetched, forecast.fetched);
    forecast.validUntil = std::min(observed.validUntil, forecast.validUntil);
    return forecast;
}

}  // namespace

AutomaticWeather::AutomaticWeather(const std::vector<const ServiceWeather*>& services) {
    for (const ServiceWeather* const weather : services)
        (weather->service().forecasts() ? forecasts_ : observations_).push_back(weather);
}

std::optional<Weather> AutomaticWeather::weatherAt(const Place& place, Instant now) const {
    auto forecasts = forecasts_;
    std::stable_partition(forecasts.begin(), forecasts.end(), [&](const ServiceWeather* weather) {
        return weather->service().isAtHome(place);
    });
    auto forecast = firstOf(forecasts, place, now);
    auto observed = firstOf(observations_, place, now);
    if (!observed)
        return forecast;
    if (!forecast)
        return observed;
    return combined(*observed, std::move(*forecast));
}

/// The first that answers, else the one with what was fetched last.
std::optional<Weather> AutomaticWeather::firstOf(const Services& services, const Place& place,
                                                 Instant now) {
    std::optional<Weather> youngest;
    for (const ServiceWeather* const service : services) {
        auto weather = service->weatherAt(place, now);
        if (weather && !weather->isHeldOver)
            return weather;
        if (weather && (!youngest || youngest->fetched < weather->fetched))
            youngest = std::move(weather);
    }
    return youngest;
}

}  // namespace zephyrix
