#pragma once

#include <QString>

namespace zephyrix::testing {

/// A home directory that no other test program uses, made when the program starts and removed when
/// it ends. HOME and the XDG folders point into it.
[[nodiscard]] QString testHome();

/// An empty folder of its own below testHome().
[[nodiscard]] QString freshFolder();

}  // namespace zephyrix::testing
