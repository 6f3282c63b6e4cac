#pragma once

#include <QImage>
#include <QSizeF>
#include <QTransform>

namespace zephyrix {

/// How an image fills a box; the numbers are those of layout descriptions.
enum class ContentMode : int {
    ScaleToFill = 0,  // not for resizing: an image is never distorted
    ScaleAspectFit = 1,
    ScaleAspectFill = 2,
};

/// How much care a change of size takes. High weighs all pixels by the area that they cover.
enum class InterpolationQuality : int { None = 1, High = 3 };

/// How the pixels of an image are turned and mirrored against what it shows.
enum class ImageOrientation : int {
    Up = 0,
    Down = 1,
    Left = 2,
    Right = 3,
    UpMirrored = 4,
    DownMirrored = 5,
    LeftMirrored = 6,
    RightMirrored = 7,
};

/// The image fitted into a box in points (ScaleAspectFit) or covering it (ScaleAspectFill), its
/// proportions kept, at scale 1. Null for a null image. Raises "InvalidArgumentException" for any
/// other content mode.
[[nodiscard]] QImage resizedImageWithContentMode(
    const QImage& image, ContentMode contentMode, const QSizeF& bounds,
    InterpolationQuality quality, ImageOrientation orientation = ImageOrientation::Up);

/// The image upright at a size in points, at scale 1: a point is a pixel, and a part of a pixel is
/// a whole one. Null when the image is null or the size is empty.
[[nodiscard]] QImage resizedImage(const QImage& image, const QSizeF& newSize,
                                  InterpolationQuality quality,
                                  ImageOrientation orientation = ImageOrientation::Up);

/// The drawing step: the image drawn under a transform, y upwards, into a bitmap of this size, its
/// own width and height exchanged first when `drawTransposed`.
[[nodiscard]] QImage resizedImage(const QImage& image, const QSizeF& newSize,
                                  const QTransform& transform, bool drawTransposed,
                                  InterpolationQuality quality);

/// What turns an image of this orientation upright in a bitmap of this size, y upwards.
[[nodiscard]] QTransform transformForOrientation(ImageOrientation orientation,
                                                 const QSizeF& newSize);

/// True when the pixels carry colour and alpha.
[[nodiscard]] bool hasAlpha(const QImage& image);

/// The image itself when it has alpha; else a copy with premultiplied alpha.
[[nodiscard]] QImage imageWithAlpha(const QImage& image);

/// All pixels of the image scaled to a size in pixels, its proportions not kept.
[[nodiscard]] QImage scaledToPixels(const QImage& image, const QSize& pixels,
                                    InterpolationQuality quality);

}  // namespace zephyrix
