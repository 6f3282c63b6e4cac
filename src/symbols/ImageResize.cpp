#include "ImageResize.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "foundation/NamedException.h"

namespace zephyrix {

namespace {

constexpr double largestSide = 16384.0;  // pixels; larger bitmaps are taken for an error

bool isTransposed(ImageOrientation orientation) {
    return orientation == ImageOrientation::Left || orientation == ImageOrientation::Right ||
           orientation == ImageOrientation::LeftMirrored ||
           orientation == ImageOrientation::RightMirrored;
}

/// The ratio by which an image of this size, in points, fills the box.
double fillRatio(ContentMode contentMode, const QSizeF& imageSize, const QSizeF& bounds) {
    const double horizontal = bounds.width() / imageSize.width();
    const double vertical = bounds.height() / imageSize.height();
    switch (contentMode) {
        case ContentMode::ScaleAspectFit:
            return std::min(horizontal, vertical);
        case ContentMode::ScaleAspectFill:
            return std::max(horizontal, vertical);
        case ContentMode::ScaleToFill:
            break;
    }
    throw NamedException(
        QStringLiteral("InvalidArgumentException"),
        QStringLiteral("Unsupported content mode: %1").arg(static_cast<int>(contentMode)));
}

/// The pixels that a size touches, as a rectangle at the origin; empty when no bitmap has that
/// size.
QSize integralSize(const QSizeF& size) {
    const double width = std::ceil(size.width());
    const double height = std::ceil(size.height());
    const bool possible =
        width >= 1 && height >= 1 && width <= largestSide && height <= largestSide;
    return possible ? QSize(static_cast<int>(width), static_cast<int>(height)) : QSize();
}

/// The format of a bitmap for what is made of an image: its own where one can draw into it.
QImage::Format bitmapFormat(const QImage& image) {
    switch (image.format()) {
        case QImage::Format_Mono:
        case QImage::Format_MonoLSB:
        case QImage::Format_Indexed8:
            return hasAlpha(image) ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        default:
            return image.format();
    }
}

/// True when the transform only turns by quarters, mirrors and moves: filtering would blur.
bool keepsPixelsWhole(const QTransform& transform) {
    const auto isWhole = [](double factor) {
        return factor == 0.0 || factor == 1.0 || factor == -1.0;
    };
    return transform.isAffine() && isWhole(transform.m11()) && isWhole(transform.m12()) &&
           isWhole(transform.m21()) && isWhole(transform.m22());
}

/// Turns the painter's y axis at half a height, both ways.
void turnUpsideDown(QPainter& painter, int height) {
    painter.translate(0, height);
    painter.scale(1, -1);
}

}  // namespace

QImage resizedImageWithContentMode(const QImage& image, ContentMode contentMode,
                                   const QSizeF& bounds, InterpolationQuality quality,
                                   ImageOrientation orientation) {
    if (image.isNull())
        return {};
    const QSizeF size = image.deviceIndependentSize();
    return resizedImage(image, size * fillRatio(contentMode, size, bounds), quality, orientation);
}

QImage resizedImage(const QImage& image, const QSizeF& newSize, InterpolationQuality quality,
                    ImageOrientation orientation) {
    return resizedImage(image, newSize, transformForOrientation(orientation, newSize),
                        isTransposed(orientation), quality);
}

QImage resizedImage(const QImage& image, const QSizeF& newSize, const QTransform& transform,
                    bool drawTransposed, InterpolationQuality quality) {
    const QSize pixels = integralSize(newSize);
    if (image.isNull() || pixels.isEmpty())
        return {};
    const QImage scaled =
        scaledToPixels(image, drawTransposed ? pixels.transposed() : pixels, quality);
    if (transform.isIdentity() && !drawTransposed)
        return scaled.convertToFormat(bitmapFormat(image));

    QImage bitmap(pixels, bitmapFormat(image));
    bitmap.fill(Qt::transparent);
    QPainter painter(&bitmap);
    turnUpsideDown(painter, pixels.height());
    painter.setTransform(transform, true);
    turnUpsideDown(painter, scaled.height());
    painter.setRenderHint(
        QPainter::SmoothPixmapTransform,
        quality == InterpolationQuality::High && !keepsPixelsWhole(painter.transform()));
    painter.drawImage(QPointF(0, 0), scaled);
    return bitmap;
}

QTransform transformForOrientation(ImageOrientation orientation, const QSizeF& newSize) {
    using enum ImageOrientation;
    QTransform transform;
    if (orientation == Down || orientation == DownMirrored)
        transform.translate(newSize.width(), newSize.height()).rotate(180);
    else if (orientation == Left || orientation == LeftMirrored)
        transform.translate(newSize.width(), 0).rotate(90);
    else if (orientation == Right || orientation == RightMirrored)
        transform.translate(0, newSize.height()).rotate(-90);

    if (orientation == UpMirrored || orientation == DownMirrored)
        transform.translate(newSize.width(), 0).scale(-1, 1);
    else if (orientation == LeftMirrored || orientation == RightMirrored)
        transform.translate(newSize.height(), 0).scale(-1, 1);
    return transform;
}

bool hasAlpha(const QImage& image) {
    return image.hasAlphaChannel() && image.format() != QImage::Format_Alpha8;
}

QImage imageWithAlpha(const QImage& image) {
    return hasAlpha(image) ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage scaledToPixels(const QImage& image, const QSize& pixels, InterpolationQuality quality) {
    QImage scaled = image.scaled(
        pixels, Qt::IgnoreAspectRatio,
        quality == InterpolationQuality::High ? Qt::SmoothTransformation : Qt::FastTransformation);
    scaled.setDevicePixelRatio(1.0);
    return scaled;
}

}  // namespace zephyrix
