#include "SymbolDrawing.h"

#include <cmath>

#include <QPainter>

namespace zephyrix {

namespace {

constexpr double largestSide = 16384.0;  // pixels; larger bitmaps are taken for an error

}  // namespace

QSize pixelSize(const QSizeF& size) {
    const double width = std::round(size.width());
    const double height = std::round(size.height());
    const bool possible =
        width >= 1 && height >= 1 && width <= largestSide && height <= largestSide;
    return possible ? QSize(static_cast<int>(width), static_cast<int>(height)) : QSize();
}

QRect pixelRect(const QRectF& rect, int bitmapHeight) {
    const QSize size = pixelSize(rect.size());
    if (size.isEmpty())
        return {};
    const double left = rect.center().x() - size.width() / 2.0;
    const double top = bitmapHeight - rect.center().y() - size.height() / 2.0;
    return {{static_cast<int>(std::round(left)), static_cast<int>(std::round(top))}, size};
}

QImage composedLayers(const QSize& pixels, std::span<const PlacedLayer> layers) {
    QImage bitmap(pixels, QImage::Format_ARGB32_Premultiplied);
    if (bitmap.isNull())
        return bitmap;
    bitmap.fill(Qt::transparent);
    QPainter painter(&bitmap);
    for (const PlacedLayer& layer : layers)
        painter.drawImage(layer.topLeft, layer.image);
    return bitmap;
}

}  // namespace zephyrix
