#pragma once

#include <array>
#include <optional>

#include <QString>
#include <QTimeZone>

#include "foundation/Instant.h"
#include "model/Coordinate.h"

namespace zephyrix {

/// Where one looks at the sky.
struct SkyPlace {
    QString name;
    Coordinate coordinate;
    QTimeZone zone;  // never invalid
};

/// When the sun comes up to a height and when it goes below it again.
struct SunPassage {
    std::optional<Instant> rise;
    std::optional<Instant> set;
    bool staysAbove = false;  // all day, where a time is absent; else it stays below

    /// Seconds above the height; 86400 and 0 where a time is absent.
    [[nodiscard]] double length() const;
};

/// What the calendar day around an instant brings at a place.
struct SkyOfDay {
    SunPassage sun;
    SunPassage civil;
    SunPassage nautical;
    SunPassage astronomical;
    double moonPhase = 0.0;  // percent, -100 to 100: 0 new moon, positive while it waxes
    int moonImage = 1;       // 1 to 8
    QString moonName;        // "waxing crescent"
};

/// The moon's phase is that of the instant itself.
[[nodiscard]] SkyOfDay skyOfDay(Instant date, const SkyPlace& place);

}  // namespace zephyrix
