#include "FeedDocument.h"

#include <cmath>
#include <cstdlib>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace zephyrix {

namespace {

constexpr int missing = -9999;

template <typename Unit>
QJsonValue json(const std::optional<Quantity<Unit>>& quantity, double parts = 10.0) {
    return quantity ? QJsonValue(std::round(quantity->value() * parts) / parts)
                    : QJsonValue(missing);
}

QJsonValue json(const std::optional<int>& code) {
    return code.value_or(missing);
}

/// The mark for a missing number would be read as a code and drawn; 0 draws nothing.
QJsonValue symbolJson(const std::optional<int>& code) {
    return code.value_or(0);
}

/// "2015-06-01T12:00:00+02:00"; the offset is written out also where it is +00:00.
QString timeText(Instant time, const QTimeZone& zone) {
    const QDateTime utc = time.toDateTime();
    const int minutes = zone.offsetFromUtc(utc) / 60;
    return QStringLiteral("%1%2%3:%4")
        .arg(utc.addSecs(60LL * minutes).toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss")),
             minutes < 0 ? QStringLiteral("-") : QStringLiteral("+"))
        .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
        .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
}

QJsonObject json(const Observation& observation, const QTimeZone& zone) {
    return {{QStringLiteral("datetime"), timeText(observation.time, zone)},
            {QStringLiteral("symbol"), symbolJson(observation.symbol)},
            {QStringLiteral("tt"), json(observation.temperature)},
            {QStringLiteral("td"), json(observation.dewPoint)},
            {QStringLiteral("dd"), json(observation.windDirection)},
            {QStringLiteral("ff"), json(observation.windSpeed)},
            {QStringLiteral("ffg"), json(observation.gusts)},
            {QStringLiteral("rrr"), json(observation.precipitation)},
            {QStringLiteral("rrrh"), json(observation.precipitationPeriod, 100.0)},
            {QStringLiteral("n"), json(observation.cloudCover)},
            {QStringLiteral("ww"), json(observation.presentWeather)},
            {QStringLiteral("ppp"), json(observation.pressure)}};
}

/// Who tells the weather goes with the observation, because the panel keeps all of that.
void addSource(QJsonObject& observation, const Weather& weather) {
    observation.insert(QStringLiteral("source"), weather.source);
    if (!weather.licence.isEmpty())
        observation.insert(QStringLiteral("licence"), weather.licence);
    if (!weather.sourceUrl.isEmpty())
        observation.insert(QStringLiteral("sourceUrl"), weather.sourceUrl);
    if (weather.fetched)
        observation.insert(QStringLiteral("fetched"), timeText(*weather.fetched, QTimeZone::utc()));
}

QJsonObject json(const ForecastDay& day) {
    return {{QStringLiteral("date"), day.date.toString(Qt::ISODate)},
            {QStringLiteral("symbol"), symbolJson(day.symbol)},
            {QStringLiteral("tx"), json(day.highest)},
            {QStringLiteral("tn"), json(day.lowest)}};
}

}  // namespace

QByteArray feedDocument(const Weather& weather, const QTimeZone& zone) {
    QJsonObject document;
    if (weather.observation) {
        QJsonObject observation = json(*weather.observation, zone);
        if (weather.observation->precipitationTime == PrecipitationTime::After)
            observation.insert(QStringLiteral("rrrnext"), true);
        addSource(observation, weather);
        document.insert(QStringLiteral("obs"),
                        QJsonObject{{QStringLiteral("lastObs"), observation}});
    }
    if (weather.days) {
        QJsonArray days;
        for (const ForecastDay& day : *weather.days)
            days.append(json(day));
        const QJsonObject list{{QStringLiteral("day"), days}};
        document.insert(QStringLiteral("forecast"), QJsonObject{{QStringLiteral("days"), list}});
    }
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}

}  // namespace zephyrix
