#include "Telling.h"

#include <gtest/gtest.h>

namespace zephyrix::testing {

namespace {

template <typename Unit>
QString text(const std::optional<Quantity<Unit>>& quantity, int digits) {
    return quantity ? QString::number(quantity->value(), 'f', digits) : QStringLiteral("-");
}

QString text(const std::optional<int>& code) {
    return code ? QString::number(*code) : QStringLiteral("-");
}

template <typename Tell>
std::string told(const WeatherService& service, const QByteArray& answer, const Place& place,
                 Instant now, const Tell& tell) {
    try {
        return tell(service.read(answer, place, now)).toStdString();
    } catch (const UnreadableAnswer& unreadable) {
        return unreadable.what();
    }
}

}  // namespace

std::string observationIn(const WeatherService& service, const QByteArray& answer,
                          const Place& place, Instant now) {
    return told(service, answer, place, now, [](const Weather& weather) {
        const Observation& o = *weather.observation;
        const bool isNext = o.precipitationTime == PrecipitationTime::After;
        return QStringLiteral("tt %1 td %2 dd %3 ff %4 ffg %5 rrr %6 %7 %8 n %9")
                   .arg(text(o.temperature, 1), text(o.dewPoint, 1), text(o.windDirection, 0),
                        text(o.windSpeed, 1), text(o.gusts, 1), text(o.precipitation, 1),
                        isNext ? QStringLiteral("next") : QStringLiteral("in"),
                        text(o.precipitationPeriod, 2), text(o.cloudCover, 0)) +
               QStringLiteral(" ww %1 ppp %2 symbol %3")
                   .arg(text(o.presentWeather), text(o.pressure, 1), text(o.symbol));
    });
}

std::string daysIn(const WeatherService& service, const QByteArray& answer, const Place& place,
                   Instant now) {
    return told(service, answer, place, now, [](const Weather& weather) {
        QStringList lines;
        for (const ForecastDay& day : weather.days.value_or(std::vector<ForecastDay>()))
            lines << QStringLiteral("%1 %2 %3 %4")
                         .arg(day.date.toString(Qt::ISODate), text(day.symbol),
                              text(day.highest, 1), text(day.lowest, 1));
        return lines.join(QStringLiteral("; "));
    });
}

QByteArray with(const QByteArray& text, const char* part, const char* other) {
    EXPECT_TRUE(text.contains(part)) << part;
    QByteArray changed = text;
    return changed.replace(part, other);
}

}  // namespace zephyrix::testing
