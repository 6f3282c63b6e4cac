// An answer where one of the service WEATHER_SERVICE is expected, for a place in Berlin at
// 2026-06-01 12:05 UTC: what is promised of all that it tells.
#include "Surroundings.h"
#include "foundation/TimeZone.h"
#include "weather/WeatherServices.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const WeatherService& service = *weatherServiceNamed(QStringLiteral(WEATHER_SERVICE));
    const QByteArray answer = bytesOf(data, size);
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
    return 0;
}
