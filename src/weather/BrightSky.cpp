#include "BrightSky.h"

#include <array>

namespace zephyrix {

namespace {

// It names no limits; these are more than a bridge needs.
constexpr std::array limits = {RequestLimit{60, 60.0}, RequestLimit{10000, 86400.0}};

constexpr double oldestObservation = 90.0 * 60.0;  // seconds
constexpr double newestObservation = 15.0 * 60.0;  // seconds ahead

/// The minutes over which a value was gathered, as its key ends.
struct Period {
    const char* suffix;
    Seconds length;
};
constexpr Period hour{"_60", Seconds(3600.0)};
constexpr Period halfHour{"_30", Seconds(1800.0)};
constexpr Period tenMinutes{"_10", Seconds(600.0)};

// Rain and gusts are told of as long a time as there is, wind of the ten minutes that it is meant
// for, if there are any.
constexpr std::array longestFirst = {hour, halfHour, tenMinutes};
constexpr std::array shortestFirst = {tenMinutes, halfHour, hour};

template <typename Measured>
struct OfPeriod {
    Measured value;
    Seconds period;
};

template <typename Measured>
std::optional<OfPeriod<Measured>> firstOf(const std::array<Period, 3>& periods,
                                          const Measurements& measured, const QByteArray& key) {
    for (const Period& period : periods)
        if (const auto value = measured.get<Measured>((key + period.suffix).constData()))
            return OfPeriod<Measured>{*value, period.length};
    return std::nullopt;
}

/// What a condition is as present weather; the rain's strength by what fell in an hour.
struct Condition {
    QLatin1String name;
    std::array<int, 3> presentWeather;  // light, moderate, heavy
};

constexpr std::array conditions = {
    Condition{QLatin1String("dry"), {2, 2, 2}},
    Condition{QLatin1String("fog"), {45, 45, 45}},
    Condition{QLatin1String("rain"), {61, 63, 65}},
    Condition{QLatin1String("sleet"), {68, 69, 69}},
    Condition{QLatin1String("snow"), {71, 73, 75}},
    Condition{QLatin1String("hail"), {89, 90, 90}},
    Condition{QLatin1String("thunderstorm"), {95, 95, 97}},
};

std::optional<int> presentWeatherOf(const QString& condition,
                                    const std::optional<OfPeriod<Millimetres>>& rain) {
    const double perHour = rain ? rain->value.value() / toHours(rain->period).value() : 0.0;
    const std::size_t strength = perHour < 2.5 ? 0 : (perHour < 10.0 ? 1 : 2);
    for (const Condition& row : conditions)
        if (condition == row.name)
            return row.presentWeather.at(strength);
    return std::nullopt;
}

void refuseFarStation(const QJsonObject& answer, const QJsonObject& weather) {
    const QJsonValue id = weather.value(QLatin1String("source_id"));
    const QJsonArray stations = answer.value(QLatin1String("sources")).toArray();
    for (const QJsonValue station : stations) {
        if (!id.isDouble() || station[QLatin1String("id")] != id)
            continue;
        const auto distance = quantityFrom<Metres>(station[QLatin1String("distance")]);
        if (distance && *distance <= BrightSky::farthestStation)
            return;
    }
    throw NothingHere(QStringLiteral("its station is not near"));
}

Instant observationTime(const QJsonObject& weather, Instant now) {
    const auto time = isoTime(weather.value(QLatin1String("timestamp")));
    if (!time)
        throw UnreadableAnswer(QStringLiteral("it has no observation"));
    const double age = now.secondsSince(*time);
    if (age > oldestObservation || age < -newestObservation)
        throw UnreadableAnswer(QStringLiteral("its observation is of %1").arg(time->description()));
    return *time;
}

Observation observationIn(const QJsonObject& weather, const Place& place, Instant now) {
    const Measurements measured(weather);
    Observation observation{.time = observationTime(weather, now),
                            .temperature = measured.get<Celsius>("temperature"),
                            .dewPoint = measured.get<Celsius>("dew_point"),
                            .pressure = measured.get<Hectopascals>("pressure_msl")};
    if (const auto direction = firstOf<Degrees>(shortestFirst, measured, "wind_direction"))
        observation.windDirection = direction->value;
    if (const auto speed = firstOf<KilometresPerHour>(shortestFirst, measured, "wind_speed"))
        observation.windSpeed = toKnots(speed->value);
    if (const auto gust = firstOf<KilometresPerHour>(longestFirst, measured, "wind_gust_speed"))
        observation.gusts = toKnots(gust->value);
    const auto rain = firstOf<Millimetres>(longestFirst, measured, "precipitation");
    if (rain) {
        observation.precipitation = rain->value;
        observation.precipitationPeriod = toHours(rain->period);
    }
    if (const auto cover = measured.get<Percent>("cloud_cover"))
        observation.cloudCover = toEighths(*cover);
    observation.presentWeather =
        presentWeatherOf(weather.value(QLatin1String("condition")).toString(), rain);
    return completed(observation, place);
}

}  // namespace

const ServiceTerms& BrightSky::terms() const {
    static constexpr ServiceTerms terms{
        .id = "bright-sky",
        .name = "Bright Sky",
        .licence = "Observation by Deutscher Wetterdienst, by way of Bright Sky (CC BY 4.0)",
        .url = "https://brightsky.dev/",
        .address = "https://api.brightsky.dev/",
        .limits = limits,
        .holdsFor = oldestObservation};
    return terms;
}

bool BrightSky::covers(const Place& place) const {
    return place.latitude >= 47.0 && place.latitude <= 55.3 && place.longitude >= 5.5 &&
           place.longitude <= 15.4;
}

QString BrightSky::requestFor(const Place& place) const {
    return QStringLiteral("current_weather?lat=%1&lon=%2")
        .arg(coordinateText(place.latitude), coordinateText(place.longitude));
}

Weather BrightSky::read(const QByteArray& answer, const Place& place, Instant now) const {
    const QJsonObject document = jsonObject(answer);
    const QJsonObject weather = document.value(QLatin1String("weather")).toObject();
    refuseFarStation(document, weather);
    return {.source = QString::fromUtf8(terms().name),
            .observation = observationIn(weather, place, now)};
}

}  // namespace zephyrix
