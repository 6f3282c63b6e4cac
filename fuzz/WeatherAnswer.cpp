#include "WeatherAnswer.h"

#include "Surroundings.h"
#include "foundation/TimeZone.h"

namespace zephyrix::fuzz {

namespace {

constexpr Instant now = Instant::fromSecondsSince1970(1780315500.0);

void checkObservation(const Observation& observation) {
    expect(observation.temperature.has_value(), "there is a temperature");
    expect(observation.symbol && *observation.symbol >= 0 && *observation.symbol < 10'000'000,
           "there is a symbol of seven digits");
    expect(!observation.dewPoint || *observation.dewPoint <= *observation.temperature,
           "the dew point is not above the temperature");
    expect(!observation.gusts || !observation.windSpeed ||
               *observation.gusts >= *observation.windSpeed,
           "gusts are not below the wind");
    expect(!observation.windDirection || (*observation.windDirection >= Degrees(0.0) &&
                                          *observation.windDirection <= Degrees(360.0)),
           "the wind has a direction on the compass");
    expect(observation.precipitation.has_value() == observation.precipitationPeriod.has_value(),
           "precipitation has a period");
}

void checkDays(const std::vector<ForecastDay>& days) {
    expect(!days.empty(), "days are left out rather than none");
    QDate before(2026, 5, 31);
    for (const ForecastDay& day : days) {
        expect(day.date > before, "days are in their order, from today on");
        before = day.date;
    }
}

}  // namespace

void checkAnswer(const WeatherService& service, const QByteArray& answer) {
    const Place place{1, 52.53, 13.38, timeZoneWithName(QStringLiteral("Europe/Berlin"))};
    static_cast<void>(service.reasonIn(answer));
    try {
        const Weather weather = service.read(answer, place, now);
        expect(weather.observation.has_value(), "there is an observation");
        checkObservation(*weather.observation);
        if (weather.days)
            checkDays(*weather.days);
        expect(!weather.validUntil || *weather.validUntil > now, "it will be read again later");
    } catch (const UnreadableAnswer&) {
        // What such an answer is for.
    }
}

}  // namespace zephyrix::fuzz
