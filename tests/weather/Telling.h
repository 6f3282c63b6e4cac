#pragma once

#include <string>

#include <QByteArray>
#include <QDateTime>

#include "foundation/TimeZone.h"
#include "weather/WeatherService.h"

namespace zephyrix::testing {

inline Place placeAt(double latitude, double longitude, const char* zone) {
    return {1, latitude, longitude, timeZoneWithName(QString::fromLatin1(zone))};
}

/// "52.53 13.38 Europe/Berlin".
inline Place placeIn(const QString& words) {
    const QStringList parts = words.split(QLatin1Char(' '));
    return placeAt(parts.at(0).toDouble(), parts.at(1).toDouble(), parts.at(2).toLatin1());
}

inline Instant at(const char* utc) {
    return Instant::fromDateTime(QDateTime::fromString(QString::fromLatin1(utc), Qt::ISODate));
}

/// What a service's answer tells, in one line a kind, or why it is of no use. "-" is missing.
/// "tt 14.8 td 12.1 dd 240 ff 11.0 ffg 18.0 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 symbol 1220100".
[[nodiscard]] std::string observationIn(const WeatherService& service, const QByteArray& answer,
                                        const Place& place, Instant now);
/// "2026-06-01 1220100 15.9 9.4" for each day, with "; " between them.
[[nodiscard]] std::string daysIn(const WeatherService& service, const QByteArray& answer,
                                 const Place& place, Instant now);

/// A text with one part replaced; the part must be there.
[[nodiscard]] QByteArray with(const QByteArray& text, const char* part, const char* other);

}  // namespace zephyrix::testing
