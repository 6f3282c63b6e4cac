#pragma once

#include <span>

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>

namespace zephyrix {

/// A layer ready to be drawn pixel by pixel: in premultiplied alpha, of its final size.
struct PlacedLayer {
    QImage image;
    QPoint topLeft;  // pixels of the bitmap, y downwards
};

/// The size rounded to whole pixels; empty when no bitmap has that size.
[[nodiscard]] QSize pixelSize(const QSizeF& size);

/// The pixels of a bitmap, y downwards, that a layer fills for a rectangle of the canvas, y
/// upwards. Its sides are rounded, its centre stays within half a pixel of where it was asked.
/// Empty when no bitmap has its size.
[[nodiscard]] QRect pixelRect(const QRectF& rect, int bitmapHeight);

/// The layers drawn over one another, the first one lowest, on a transparent bitmap. What lies
/// outside of it is cut off.
[[nodiscard]] QImage composedLayers(const QSize& pixels, std::span<const PlacedLayer> layers);

}  // namespace zephyrix
