#include "Contrast.h"

#include <algorithm>
#include <cmath>

namespace zephyrix::testing {

namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

}  // namespace

QColor over(const QColor& ground, const QColor& top) {
    const auto mix = [&](double below, double above) {
        return static_cast<float>(below + (above - below) * top.alphaF());
    };
    return QColor::fromRgbF(mix(ground.redF(), top.redF()), mix(ground.greenF(), top.greenF()),
                            mix(ground.blueF(), top.blueF()));
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace zephyrix::testing
