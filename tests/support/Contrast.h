#pragma once

#include <QColor>

namespace zephyrix::testing {

/// What is seen of a colour on an opaque ground.
[[nodiscard]] QColor over(const QColor& ground, const QColor& top);

/// Contrast of two opaque colours, 1 to 21, after WCAG 2.1.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

}  // namespace zephyrix::testing
