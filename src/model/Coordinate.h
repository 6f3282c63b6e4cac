#pragma once

namespace zephyrix {

/// A point on the earth.
struct Coordinate {
    double latitude = 0.0;   // degrees, north positive
    double longitude = 0.0;  // degrees, east positive
};

}  // namespace zephyrix
