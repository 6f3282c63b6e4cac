#include "WeatherService.h"

#include <algorithm>
#include <cmath>

#include <QDateTime>

#include "Daylight.h"
#include "symbolscheme/SymbolScheme.h"

namespace zephyrix {

namespace {

constexpr int noReport = -1;

int symbolFor(int presentWeather, std::optional<Eighths> cloudCover, bool daylight) {
    const int eighths = cloudCover ? static_cast<int>(cloudCover->value()) : noReport;
    const auto body = daylight ? CelestialBody::Sun : CelestialBody::Moon;
    return static_cast<int>(symbolCode(presentWeather, eighths, body));
}

Degrees windFrom(Degrees direction, std::optional<Knots> speed) {
    if (speed && *speed < Knots(0.5))
        return Degrees(0.0);
    const double whole = std::round(direction.value());
    return Degrees(whole == 0.0 ? 360.0 : whole);
}

}  // namespace

QString coordinateText(double degrees) {
    const double rounded = std::round(degrees * 1e4) / 1e4;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'f', 4);  // never "-0.0000"
}

Observation completed(Observation observation, const Place& place) {
    if (!observation.temperature)
        throw UnreadableAnswer(QStringLiteral("it tells no temperature"));
    if (observation.dewPoint)
        observation.dewPoint = std::min(*observation.dewPoint, *observation.temperature);
    if (observation.gusts && observation.windSpeed)
        observation.gusts = std::max(*observation.gusts, *observation.windSpeed);
    if (observation.windDirection)
        observation.windDirection = windFrom(*observation.windDirection, observation.windSpeed);
    if (!observation.precipitation || !observation.precipitationPeriod) {
        observation.precipitation.reset();
        observation.precipitationPeriod.reset();
    }
    const bool isKnown = observation.presentWeather || observation.cloudCover;
    observation.symbol =
        isKnown ? symbolFor(observation.presentWeather.value_or(noReport), observation.cloudCover,
                            isDaylight(place, observation.time))
                : 0;
    return observation;
}

int symbolOfDay(int presentWeather, std::optional<Eighths> cloudCover, const Place& place,
                QDate date) {
    // By the sun and not by the clock: a zone may lie half a day beside its place.
    const QDateTime noonAtGreenwich(date, QTime(12, 0), Qt::UTC);
    const Instant noon =
        Instant::fromDateTime(noonAtGreenwich).addingSeconds(-240.0 * place.longitude);
    return symbolFor(presentWeather, cloudCover, isDaylight(place, noon));
}

QDate dateAt(const Place& place, Instant time) {
    return time.toDateTime().toTimeZone(place.zone).date();
}

}  // namespace zephyrix
