#pragma once

#include <optional>

#include <QStringView>

#include "GregorianCalendar.h"

namespace zephyrix {

/// What a text says by the fields of a date pattern. The day exists in the Gregorian calendar.
struct DateFields {
    CalendarFields wall;        // years 1 to 9999, each field within its own limits
    std::optional<int> offset;  // seconds east of Greenwich, where the text has one
};

/// Reads a text that has exactly the form of a pattern; see DateFormatter::dateFromString().
[[nodiscard]] std::optional<DateFields> parseDateFields(QStringView pattern, QStringView text);

}  // namespace zephyrix
