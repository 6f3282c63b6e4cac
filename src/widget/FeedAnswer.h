#pragma once

#include <optional>

#include <QByteArray>

#include "WeatherData.h"
#include "foundation/Number.h"
#include "transport/FeedError.h"

namespace zephyrix {

/// What a fetch ends with: always a document, be it empty, and perhaps an error.
struct FeedAnswer {
    WeatherData document;
    std::optional<FeedError> error;

    /// Reads the body that the feed sent for a place. No body (not one byte) is an empty document
    /// without error; so is JSON of another shape. What is no JSON is the parser's error. Any
    /// thread.
    [[nodiscard]] static FeedAnswer fromBody(const QByteArray& body, const Number& locationID);
};

}  // namespace zephyrix
