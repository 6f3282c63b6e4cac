#include "MetTimeSeries.h"

#include <algorithm>

#include "ReadJson.h"

namespace zephyrix {

namespace {

constexpr qsizetype mostSteps = 1000;

QJsonObject objectIn(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key)).toObject();
}

Observation instantIn(const QJsonObject& data, const QJsonObject& units, Instant time) {
    const Measurements details(objectIn(objectIn(data, "instant"), "details"), units);
    Observation observation{.time = time,
                            .temperature = details.get<Celsius>("air_temperature"),
                            .dewPoint = details.get<Celsius>("dew_point_temperature"),
                            .windDirection = details.get<Degrees>("wind_from_direction"),
                            .pressure = details.get<Hectopascals>("air_pressure_at_sea_level")};
    if (const auto speed = details.get<MetresPerSecond>("wind_speed"))
        observation.windSpeed = toKnots(*speed);
    if (const auto gust = details.get<MetresPerSecond>("wind_speed_of_gust"))
        observation.gusts = toKnots(*gust);
    if (const auto cover = details.get<Percent>("cloud_area_fraction"))
        observation.cloudCover = toEighths(*cover);
    return observation;
}

std::optional<MetPeriod> periodIn(const QJsonObject& data, const char* key, Hours length,
                                  const QJsonObject& units) {
    const QJsonObject period = objectIn(data, key);
    if (period.isEmpty())
        return std::nullopt;
    const Measurements details(objectIn(period, "details"), units);
    const QString code = objectIn(period, "summary").value(QLatin1String("symbol_code")).toString();
    return MetPeriod{.length = length,
                     .symbol = metSymbol(code.toStdString()),
                     .precipitation = details.get<Millimetres>("precipitation_amount"),
                     .highest = details.get<Celsius>("air_temperature_max"),
                     .lowest = details.get<Celsius>("air_temperature_min")};
}

}  // namespace

const MetPeriod* MetStep::shortestPeriod() const noexcept {
    if (nextHour)
        return &*nextHour;
    return nextSixHours ? &*nextSixHours : nullptr;
}

std::vector<MetStep> metSteps(const QJsonObject& answer) {
    const QJsonObject properties = objectIn(answer, "properties");
    const QJsonObject units = objectIn(objectIn(properties, "meta"), "units");
    const QJsonArray series = properties.value(QLatin1String("timeseries")).toArray();
    std::vector<MetStep> steps;
    for (qsizetype i = 0; i < series.size() && i < mostSteps; ++i) {
        const QJsonObject entry = series.at(i).toObject();
        const auto time = isoTime(entry.value(QLatin1String("time")));
        if (!time)
            continue;
        const QJsonObject data = objectIn(entry, "data");
        steps.push_back({.time = *time,
                         .instant = instantIn(data, units, *time),
                         .nextHour = periodIn(data, "next_1_hours", Hours(1.0), units),
                         .nextSixHours = periodIn(data, "next_6_hours", Hours(6.0), units)});
    }
    if (steps.empty())
        throw UnreadableAnswer(QStringLiteral("it has no time steps"));
    const auto isEarlier = [](const MetStep& a, const MetStep& b) { return a.time < b.time; };
    std::stable_sort(steps.begin(), steps.end(), isEarlier);
    const auto isSameTime = [](const MetStep& a, const MetStep& b) { return a.time == b.time; };
    steps.erase(std::unique(steps.begin(), steps.end(), isSameTime), steps.end());
    return steps;
}

}  // namespace zephyrix
