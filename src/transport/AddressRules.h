#pragma once

#include <QUrl>

namespace zephyrix {

/// Whether a feed may live there: http or https, with a host.
[[nodiscard]] bool isFeedAddress(const QUrl& address);

/// Whether nobody else hears what is said to that address: "localhost", 127.0.0.0/8, ::1, and
/// 127.0.0.0/8 written as IPv6.
[[nodiscard]] bool isThisMachine(const QUrl& address);

}  // namespace zephyrix
