#pragma once

#include <cstdint>
#include <optional>

#include <QStringView>

namespace zephyrix {

/// What a text says by the fields of a date pattern. The day exists in the Gregorian calendar.
struct DateFields {
    int year = 1970;            // 1 to 9999
    int month = 1;              // 1 to 12
    int day = 1;                // 1 to 31
    int hour = 0;               // 0 to 23
    int minute = 0;             // 0 to 59
    int second = 0;             // 0 to 59
    std::optional<int> offset;  // seconds east of Greenwich, where the text has one

    /// Seconds since 1970-01-01 00:00:00 of the clock that shows these fields.
    [[nodiscard]] std::int64_t secondsOfTheClock() const;
};

/// Reads a text that has exactly the form of a pattern; see DateFormatter::dateFromString().
[[nodiscard]] std::optional<DateFields> parseDateFields(QStringView pattern, QStringView text);

}  // namespace zephyrix
