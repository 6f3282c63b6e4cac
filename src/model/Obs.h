#pragma once

#include <optional>

#include <QVariant>
#include <QVariantMap>

#include "foundation/Instant.h"
#include "foundation/Number.h"

namespace zephyrix {

/// One observation: what a place's station measured at one time. Every field is absent unless the
/// feed gave it in the right type; the feed's own mark for a missing number, -9999, is a number
/// like any other here. A plain record, used on one thread at a time.
struct Obs {
    /// Reads the feed's observation dictionary, or the same dictionary from the cache. Of
    /// "datetime" and "date" the entry visited last wins: entries are visited in sorted order.
    explicit Obs(const QVariantMap& dictionary);

    std::optional<Instant> date;      // "datetime" (text) or "date" (seconds since 1970)
    std::optional<Number> symbol;     // code of the weather symbol, seven decimal digits
    std::optional<Number> tt;         // air temperature, degrees Celsius
    std::optional<Number> td;         // dew point, degrees Celsius
    std::optional<Number> dd;         // direction that the wind comes from, degrees
    std::optional<Number> ff;         // wind speed, knots
    std::optional<Number> ffg;        // gust speed, knots
    std::optional<Number> rrr;        // precipitation, mm, fallen in the last rrrh hours
    std::optional<Number> rrrh;       // period of rrr, hours
    std::optional<Number> n;          // cloud cover, eighths
    std::optional<Number> ww;         // present-weather code
    std::optional<Number> ppp;        // air pressure, hPa
    std::optional<QVariantMap> dict;  // the dictionary it was built from, whole

    /// Whether there is enough to show a row: a date and a symbol.
    [[nodiscard]] bool isValid() const noexcept;
    /// The dictionary it was built from, unchanged; changed fields are never written back.
    [[nodiscard]] QVariantMap asDict() const;

    /// The number; for anything else nothing and the log line "object ... is not a number!".
    [[nodiscard]] static std::optional<Number> numberOrNil(const QVariant& value);
    /// From "2015-06-01T12:00:00+02:00" or with "Z"; nothing for any other text, date or type.
    [[nodiscard]] static std::optional<Instant> dateFromISO8601DateTimeString(
        const QVariant& value);
    /// A date as it stands, a number as seconds since 1970 with their fraction; else nothing.
    [[nodiscard]] static std::optional<Instant> dateFromObject(const QVariant& value);
};

}  // namespace zephyrix
