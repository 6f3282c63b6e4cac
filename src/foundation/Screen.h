#pragma once

#include <QRectF>

namespace zephyrix {

/// The screen as far as the panel is concerned: the area that the host gives to it. A narrower
/// panel therefore has fewer columns, also on a wide monitor. Main thread.
class Screen {
  public:
    /// What the host said last; 375 x 667 points at scale 1 before that.
    [[nodiscard]] static const Screen& main() noexcept;
    /// Said by the host whenever the panel's area changes: its width and height in points, and the
    /// device pixels of a point (1.0, 1.25, 2.0, ...).
    static void setMain(const QRectF& bounds, double scale) noexcept;

    [[nodiscard]] const QRectF& bounds() const noexcept { return bounds_; }  // points
    [[nodiscard]] double scale() const noexcept { return scale_; }           // pixels a point

  private:
    QRectF bounds_{0.0, 0.0, 375.0, 667.0};
    double scale_ = 1.0;
};

}  // namespace zephyrix
