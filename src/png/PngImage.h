#pragma once

#include <QByteArray>
#include <QImage>

namespace zephyrix {

/// The image in the bytes of a PNG file, in premultiplied alpha at scale 1. Null when the bytes are
/// cut off, damaged or no PNG file, or when a side of the image is longer than `longestSide`
/// pixels; no memory is taken for such an image. Any thread.
///
/// The toolkit's own reader and writer would first load their plugins for every other kind of
/// picture.
[[nodiscard]] QImage readPng(const QByteArray& file, int longestSide);

/// What a PNG file says under this keyword, as Latin text that is not compressed ("tEXt"). Empty
/// where it says nothing, also where the file is cut off before. Any thread.
[[nodiscard]] QByteArray pngText(const QByteArray& file, QByteArrayView keyword);

/// The bytes of a PNG file of the image that says so under this keyword, both plain ASCII. Packed
/// fast rather than small. Empty when there is no memory for it, or no image. Any thread.
[[nodiscard]] QByteArray pngOf(const QImage& image, const QByteArray& keyword,
                               const QByteArray& text);

}  // namespace zephyrix
