#include "PngImage.h"

#include <cstdint>
#include <png.h>

#include <QtEndian>

namespace zephyrix {

namespace {

constexpr qsizetype signatureSize = 8;
constexpr qsizetype headSize = 8;  // of a chunk: the length of its content, and its name
constexpr qsizetype checksumSize = 4;

/// The chunks of a PNG file, one after the other.
class Chunks {
  public:
    explicit Chunks(QByteArrayView file) : file_(file) {}

    /// Whether there is another one that lies whole inside of the file.
    bool next() {
        at_ = end_;
        if (file_.size() - at_ < headSize)
            return false;
        const qint64 length = qFromBigEndian<quint32>(file_.data() + at_);
        if (file_.size() - at_ < headSize + length + checksumSize)
            return false;
        end_ = at_ + headSize + length + checksumSize;
        return true;
    }

    [[nodiscard]] bool is(QByteArrayView name) const { return file_.sliced(at_ + 4, 4) == name; }
    [[nodiscard]] QByteArrayView content() const {
        return file_.sliced(at_ + headSize, end_ - at_ - headSize - checksumSize);
    }

  private:
    QByteArrayView file_;
    qsizetype at_ = 0;
    qsizetype end_ = signatureSize;
};

/// The codec would make room for whatever a damaged length claims, gigabytes, before it reads on.
bool isWhole(QByteArrayView file) {
    for (Chunks chunks(file); chunks.next();)
        if (chunks.is("IEND"))
            return true;
    return false;
}

/// Ends the codec's work on an image, whatever came of it.
struct Codec {
    Codec() { image.version = PNG_IMAGE_VERSION; }
    ~Codec() { png_image_free(&image); }
    Codec(const Codec&) = delete;
    Codec& operator=(const Codec&) = delete;

    png_image image{};
};

}  // namespace

QImage readPng(const QByteArray& file, int longestSide) {
    if (!isWhole(file))
        return {};
    Codec codec;
    const auto size = static_cast<std::size_t>(file.size());
    if (png_image_begin_read_from_memory(&codec.image, file.constData(), size) == 0)
        return {};
    const auto longest = static_cast<std::uint32_t>(longestSide);
    if (codec.image.width > longest || codec.image.height > longest)
        return {};
    QImage image(static_cast<int>(codec.image.width), static_cast<int>(codec.image.height),
                 QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    codec.image.format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    const auto stride = static_cast<png_int_32>(image.bytesPerLine());
    if (png_image_finish_read(&codec.image, nullptr, image.bits(), stride, nullptr) == 0)
        return {};
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}

QByteArray pngText(const QByteArray& file, QByteArrayView keyword) {
    for (Chunks chunks(file); chunks.next();) {
        if (!chunks.is("tEXt"))
            continue;
        const QByteArrayView content = chunks.content();
        const qsizetype nothing = content.indexOf('\0');
        if (nothing >= 0 && content.first(nothing) == keyword)
            return content.sliced(nothing + 1).toByteArray();
    }
    return {};
}

}  // namespace zephyrix
