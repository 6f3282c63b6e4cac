#pragma once

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include "Quantity.h"
#include "foundation/Instant.h"

namespace zephyrix {

/// An answer of a weather service that is of no use; what() says why in a few words for the log.
class UnreadableAnswer : public std::runtime_error {
  public:
    explicit UnreadableAnswer(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// An answer that says that there is no weather for the place, and will not be for a while.
class NothingHere : public UnreadableAnswer {
  public:
    using UnreadableAnswer::UnreadableAnswer;
};

/// The object that a JSON text is; throws UnreadableAnswer for anything else.
[[nodiscard]] QJsonObject jsonObject(const QByteArray& text);

/// A whole number within limits; nothing for any other value.
[[nodiscard]] std::optional<int> wholeNumber(const QJsonValue& value, int least, int most);

/// A time in whole or broken seconds since 1970, up to the year 2200; else nothing.
[[nodiscard]] std::optional<Instant> unixTime(const QJsonValue& value);

/// A time such as "2026-06-01T12:00:00Z" or with an offset like "+02:00"; nothing for a text
/// without one, which could mean any zone.
[[nodiscard]] std::optional<Instant> isoTime(const QJsonValue& value);

/// The value as a quantity, if it is a number that this quantity can have.
template <typename Measured>
[[nodiscard]] std::optional<Measured> quantityFrom(const QJsonValue& value) {
    constexpr const UnitFacts& facts = FactsOf<Measured>::facts;
    const double number = value.toDouble();
    if (!value.isDouble() || !(number >= facts.least && number <= facts.most))
        return std::nullopt;
    return Measured(number);
}

/// The numbers of one JSON object, read by unit. Where the service says in which units its numbers
/// are, a number in another unit than the one asked for is not given out.
class Measurements {
  public:
    /// The values; and under the same keys the names of their units, if the service gives them.
    explicit Measurements(QJsonObject values, QJsonObject units = {})
        : values_(std::move(values)), units_(std::move(units)) {}

    template <typename Measured>
    [[nodiscard]] std::optional<Measured> get(const char* key) const {
        if (!isIn(FactsOf<Measured>::facts, key))
            return std::nullopt;
        return quantityFrom<Measured>(values_.value(QLatin1String(key)));
    }

  private:
    [[nodiscard]] bool isIn(const UnitFacts& unit, const char* key) const;

    QJsonObject values_;
    QJsonObject units_;
};

}  // namespace zephyrix
