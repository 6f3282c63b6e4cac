#pragma once

namespace zephyrix {

/// Where a row stands in a table; both counted from 0.
struct IndexPath {
    int row = 0;
    int section = 0;

    friend constexpr bool operator==(const IndexPath&, const IndexPath&) noexcept = default;
};

}  // namespace zephyrix
