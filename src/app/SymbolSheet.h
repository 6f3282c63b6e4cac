#pragma once

#include <functional>
#include <optional>

#include <QImage>

#include "foundation/Instant.h"

namespace zephyrix {

struct SymbolSheetOptions {
    double size = 40.0;           // points, width and height of a symbol
    double scale = 1.0;           // pixels a point
    std::optional<Instant> date;  // of the moon; without it the eight moons stand side by side
};

/// All symbols that the scheme of codes can produce, and each warning alone, with their codes:
/// first on light ground, then on dark. `progress` is told how many of how many are drawn.
[[nodiscard]] QImage symbolSheet(const SymbolSheetOptions& options,
                                 const std::function<void(int, int)>& progress);

}  // namespace zephyrix
