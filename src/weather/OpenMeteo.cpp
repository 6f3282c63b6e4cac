#include "OpenMeteo.h"

#include <array>
#include <cmath>

#include <QDateTime>

#include "WmoWeatherCode.h"

namespace zephyrix {

namespace {

// What the service allows to those who do not pay.
constexpr std::array limits = {RequestLimit{600, 60.0}, RequestLimit{5000, 3600.0},
                               RequestLimit{10000, 86400.0}};

constexpr double oldestObservation = 86400.0;  // seconds
constexpr double newestObservation = 3600.0;   // seconds ahead: a clock may be slow

QJsonObject objectIn(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key)).toObject();
}

QJsonValue valueIn(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key));
}

Instant observationTime(const QJsonObject& current, Instant now) {
    const auto time = unixTime(valueIn(current, "time"));
    if (!time)
        throw UnreadableAnswer(QStringLiteral("it has no weather of now"));
    const double age = now.secondsSince(*time);
    if (age > oldestObservation || age < -newestObservation)
        throw UnreadableAnswer(QStringLiteral("its weather is of %1").arg(time->description()));
    return *time;
}

Observation observationIn(const QJsonObject& answer, const Place& place, Instant now) {
    const QJsonObject current = objectIn(answer, "current");
    const Measurements measured(current, objectIn(answer, "current_units"));
    Observation observation{.time = observationTime(current, now),
                            .temperature = measured.get<Celsius>("temperature_2m"),
                            .dewPoint = measured.get<Celsius>("dew_point_2m"),
                            .windDirection = measured.get<Degrees>("wind_direction_10m"),
                            .windSpeed = measured.get<Knots>("wind_speed_10m"),
                            .gusts = measured.get<Knots>("wind_gusts_10m"),
                            .precipitation = measured.get<Millimetres>("precipitation"),
                            .pressure = measured.get<Hectopascals>("pressure_msl")};
    if (const auto interval = measured.get<Seconds>("interval"))
        observation.precipitationPeriod = toHours(*interval);
    if (const auto code = wholeNumber(valueIn(current, "weather_code"), 0, 99)) {
        observation.presentWeather = wmoWeather(*code).presentWeather;
        observation.cloudCover = wmoWeather(*code).cloudCover;
    }
    if (const auto cover = measured.get<Percent>("cloud_cover"))
        observation.cloudCover = toEighths(*cover);
    return completed(observation, place);
}

/// The day that begins at a time, which is its midnight at an offset. The nearest midnight is
/// taken: the offset is that of now, and the clock may be changed before the day comes.
QDate dayBeginningAt(Instant midnight, double utcOffset) {
    const double days = std::round((midnight.secondsSince1970() + utcOffset) / 86400.0);
    return QDate(1970, 1, 1).addDays(static_cast<qint64>(days));
}

std::vector<ForecastDay> daysIn(const QJsonObject& answer, const Place& place, Instant now) {
    const QJsonObject daily = objectIn(answer, "daily");
    const int offset = wholeNumber(valueIn(answer, "utc_offset_seconds"), -86400, 86400)
                           .value_or(place.zone.offsetFromUtc(now.toDateTime()));
    const QJsonObject units = objectIn(answer, "daily_units");
    const QJsonArray times = valueIn(daily, "time").toArray();
    const QDate today = dateAt(place, now);
    std::vector<ForecastDay> days;
    for (qsizetype i = 0; i < times.size() && i < qsizetype{2} * shownDays; ++i) {
        const auto midnight = unixTime(times.at(i));
        const QDate date = midnight ? dayBeginningAt(*midnight, offset) : QDate();
        if (!date.isValid() || date < today || (!days.empty() && date <= days.back().date))
            continue;
        const auto valueOfDay = [&](const char* key) {
            return valueIn(daily, key).toArray().at(i);  // undefined beyond its end
        };
        const auto temperature = [&](const char* key) {
            return Measurements({{QLatin1String(key), valueOfDay(key)}}, units).get<Celsius>(key);
        };
        ForecastDay day{.date = date,
                        .highest = temperature("temperature_2m_max"),
                        .lowest = temperature("temperature_2m_min")};
        if (const auto code = wholeNumber(valueOfDay("weather_code"), 0, 99))
            day.symbol = symbolOfDay(wmoWeather(*code).presentWeather, wmoWeather(*code).cloudCover,
                                     place, date);
        days.push_back(day);
    }
    return days;
}

}  // namespace

const ServiceTerms& OpenMeteo::terms() const {
    static constexpr ServiceTerms terms{.id = "open-meteo",
                                        .name = "Open-Meteo",
                                        .licence = "Weather data by Open-Meteo.com (CC BY 4.0)",
                                        .url = "https://open-meteo.com/",
                                        .address = "https://api.open-meteo.com/",
                                        .limits = limits,
                                        .holdsFor = oldestObservation};
    return terms;
}

QString OpenMeteo::requestFor(const Place& place) const {
    return QStringLiteral(
               "v1/forecast?latitude=%1&longitude=%2"
               "&current=temperature_2m,relative_humidity_2m,dew_point_2m,precipitation,"
               "weather_code,cloud_cover,pressure_msl,wind_speed_10m,wind_direction_10m,"
               "wind_gusts_10m"
               "&daily=weather_code,temperature_2m_max,temperature_2m_min"
               "&wind_speed_unit=kn&timeformat=unixtime&timezone=auto&forecast_days=6")
        .arg(coordinateText(place.latitude), coordinateText(place.longitude));
}

Weather OpenMeteo::read(const QByteArray& answer, const Place& place, Instant now) const {
    const QJsonObject document = jsonObject(answer);
    Weather weather{.source = QString::fromUtf8(terms().name),
                    .observation = observationIn(document, place, now)};
    if (auto days = daysIn(document, place, now); !days.empty())
        weather.days = std::move(days);
    return weather;
}

QString OpenMeteo::reasonIn(const QByteArray& answer) const {
    try {
        return valueIn(jsonObject(answer), "reason").toString().left(200);
    } catch (const UnreadableAnswer&) {
        return {};
    }
}

}  // namespace zephyrix
