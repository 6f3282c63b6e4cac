#pragma once

#include <cmath>

#include <QPainter>
#include <QPointF>

namespace zephyrix {

/// The device pixels below a painter that only moves and scales: what starts and ends on them is
/// sharp. Asked of the painter's transform, because a view that is painted into a picture knows the
/// ratio of its own screen only.
class DeviceGrid {
  public:
    explicit DeviceGrid(const QPainter& painter)
        : scale_(painter.deviceTransform().m11()),
          origin_(painter.deviceTransform().dx(), painter.deviceTransform().dy()) {}

    [[nodiscard]] double scale() const noexcept { return scale_; }  // pixels a point
    /// The nearest point that lies on a pixel's corner.
    [[nodiscard]] QPointF snapped(const QPointF& point) const {
        return {(std::round(point.x() * scale_ + origin_.x()) - origin_.x()) / scale_,
                (std::round(point.y() * scale_ + origin_.y()) - origin_.y()) / scale_};
    }

  private:
    double scale_;
    QPointF origin_;
};

}  // namespace zephyrix
