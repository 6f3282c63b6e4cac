#pragma once

#include <QString>

namespace zephyrix {

/// Writes one message as one line to standard error, where the journal takes it from. Line breaks
/// and other control characters inside the message are written as escapes. Any thread.
void logLine(const QString& message);

}  // namespace zephyrix
