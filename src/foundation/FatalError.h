#pragma once

#include <QString>

namespace zephyrix {

/// For programming errors and broken contracts only: writes one line to the log and ends the
/// process by abort().
[[noreturn]] void fatalError(const QString& line);

}  // namespace zephyrix
