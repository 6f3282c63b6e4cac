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

/// To a tenth of the unit.
template <typename Unit>
QJsonValue json(const std::optional<Quantity<Unit>>& quantity) {
    return quantity ? QJsonValue(std::round(quantity->value() * 10.0) / 10.0) : QJsonValue(missing);
}

QJsonValue json(const std::optional<int>& code) {
    return code.value_or(missing);
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
            {QStringLiteral("symbol"), json(observation.symbol)},
            {QStringLiteral("tt"), json(observation.temperature)},
            {QStringLiteral("td"), json(observation.dewPoint)},
            {QStringLiteral("dd"), json(observation.windDirection)},
            {QStringLiteral("ff"), json(observation.windSpeed)},
            {QStringLiteral("ffg"), json(observation.gusts)},
            {QStringLiteral("rrr"), json(observation.precipitation)},
            {QStringLiteral("rrrh"), json(observation.precipitationPeriod)},
            {QStringLiteral("n"), json(observation.cloudCover)},
            {QStringLiteral("ww"), json(observation.presentWeather)},
            {QStringLiteral("ppp"), json(observation.pressure)}};
}

QJsonObject json(const ForecastDay& day) {
    return {{QStringLiteral("date"), day.date.toString(Qt::ISODate)},
            {QStringLiteral("symbol"), json(day.symbol)},
            {QStringLiteral("tx"), json(day.highest)},
            {QStringLiteral("tn"), json(day.lowest)}};
}

}  // namespace

QByteArray feedDocument(const Weather& weather, const QTimeZone& zone) {
    QJsonObject document;
    if (weather.observation) {
        QJsonObject observation = json(*weather.observation, zone);
        observation.insert(QStringLiteral("source"), weather.source);
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
