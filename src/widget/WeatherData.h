#pragma once

#include <optional>

#include <QVariantList>
#include <QVariantMap>

#include "foundation/Instant.h"
#include "foundation/Number.h"
#include "model/Obs.h"

namespace zephyrix {

/// The weather document as the panel keeps it: when it was fetched, for which place, the latest
/// observation and the forecast. A plain record, used on one thread at a time.
struct WeatherData {
    WeatherData() = default;
    /// Restores what asDict() gave. A dictionary without an "obs" dictionary is a fatal error:
    /// deliberate, because a document without observation must never come back as a good one.
    explicit WeatherData(const QVariantMap& cached);

    std::optional<Instant> insertDtg;  // when the document was parsed
    std::optional<Number> uid;         // the place that was asked for
    std::optional<Obs> obs;
    std::optional<QVariantList> forecast;  // one dictionary a day, as the feed sent them

    /// Whether there is an observation and it is valid.
    [[nodiscard]] bool isValid() const noexcept;
    /// For the settings store: only what is present; the date as a date.
    [[nodiscard]] QVariantMap asDict() const;
};

/// The value when it is a list that holds nothing but dictionaries; else nothing.
[[nodiscard]] std::optional<QVariantList> listOfDictionaries(const QVariant& value);

/// The value when it is a dictionary; else nothing.
[[nodiscard]] std::optional<QVariantMap> dictionaryFrom(const QVariant& value);

}  // namespace zephyrix
