#pragma once

#include <QString>
#include <QTimeZone>

namespace zephyrix {

/// The zone of an IANA name ("Europe/Berlin", "UTC", "Etc/GMT+5"); an invalid zone for a name that
/// the system's zone data does not know, an empty one included. Any thread.
[[nodiscard]] QTimeZone timeZoneWithName(const QString& name);

/// The zone of the system or of the environment variable TZ as it is now; UTC when that names
/// nothing known. Never invalid.
[[nodiscard]] QTimeZone defaultTimeZone();

}  // namespace zephyrix
