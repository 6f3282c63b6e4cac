#pragma once

#include <optional>

#include <QByteArray>

#include "foundation/Instant.h"

namespace zephyrix {

/// "Mon, 01 Jun 2026 10:00:00 GMT", to the whole second.
[[nodiscard]] QByteArray httpDate(Instant time);

/// The time that an HTTP header gives in this form; nothing for any other text.
[[nodiscard]] std::optional<Instant> instantFromHttpDate(const QByteArray& text);

}  // namespace zephyrix
