#pragma once

#include <QString>
#include <QVariant>

namespace zephyrix {

/// The textual form of anything a dictionary may hold, for log lines: "3", "2015-06-01 10:00:00
/// +0000", "(1, 2)", "{name = Berlin; uid = 5}"; "nil" for nothing, "<null>" for JSON's null.
[[nodiscard]] QString description(const QVariant& value);

}  // namespace zephyrix
