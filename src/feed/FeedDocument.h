#pragma once

#include <QByteArray>
#include <QTimeZone>

#include "weather/Weather.h"

namespace zephyrix {

/// The JSON document that the panel reads, as docs/feed-format.md describes it. Times are written
/// with the zone's offset; a value that is absent is written as -9999, an absent symbol as 0.
/// Numbers are written to a tenth, the hours of the precipitation to a hundredth.
[[nodiscard]] QByteArray feedDocument(const Weather& weather, const QTimeZone& zone);

}  // namespace zephyrix
