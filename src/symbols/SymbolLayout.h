#pragma once

#include <cstdint>

#include <QPointF>
#include <QRectF>

namespace zephyrix {

/// Where the layers of a symbol go: pixels of the canvas, y upwards.
struct SymbolRects {
    QRectF celestrial;
    QRectF cloud;
    QRectF prec;
};

/// What the layout of a symbol depends on.
struct SymbolParts {
    bool celestrial = false;
    bool sun = false;  // a body that is no sun takes the moon's place
    bool precipitation = false;
    std::uint64_t cloud = 0;  // the cloud digit 0...9, without the thunder series
};

/// The rectangle scaled about the origin, then moved by (1 - scale) / 2 of the canvas's size.
[[nodiscard]] QRectF scaleAndCenter(const QRectF& rect, double scale, const QRectF& canvas);

/// The rectangle moved by (point.x - 0.5) of the canvas's width and (0.5 - point.y) of its height:
/// point.y counts from the top, the rectangle's y axis points up.
[[nodiscard]] QRectF positionAtCenter(const QRectF& rect, const QPointF& point,
                                      const QRectF& canvas);

/// The rectangles of the layers, each starting as the full canvas.
[[nodiscard]] SymbolRects symbolRects(const SymbolParts& parts, const QRectF& canvas);

}  // namespace zephyrix
