#include "PngImage.h"

#include <cstdint>
#include <png.h>
#include <zlib.h>

#include <QtEndian>

namespace zephyrix {

namespace {

constexpr qsizetype signatureSize = 8;
constexpr qsizetype headSize = 8;  // of a chunk: the length of its content, and its name
constexpr qsizetype nameSize = 4;
constexpr qsizetype checksumSize = 4;
constexpr qsizetype headerContentSize = 13;  // of the first chunk, "IHDR"

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

    [[nodiscard]] bool is(QByteArrayView name) const {
        return file_.sliced(at_ + nameSize, nameSize) == name;
    }
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

constexpr png_uint_32 straightAlpha =
    Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;  // the toolkit's ARGB32

QByteArray bigEndian(std::uint32_t number) {
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray textChunk(const QByteArray& keyword, const QByteArray& text) {
    const QByteArray content = keyword + '\0' + text;
    const QByteArray checked = "tEXt" + content;
    const uLong checksum = ::crc32(0, reinterpret_cast<const Bytef*>(checked.constData()),
                                   static_cast<uInt>(checked.size()));
    return bigEndian(static_cast<std::uint32_t>(content.size())) + checked +
           bigEndian(static_cast<std::uint32_t>(checksum));
}

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
    codec.image.format = straightAlpha;
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
        const qsizetype terminator = content.indexOf('\0');
        if (terminator >= 0 && content.first(terminator) == keyword)
            return content.sliced(terminator + 1).toByteArray();
    }
    return {};
}

QByteArray pngOf(const QImage& image, const QByteArray& keyword, const QByteArray& text) {
    constexpr qsizetype headerEnd = signatureSize + headSize + headerContentSize + checksumSize;
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    Codec codec;
    codec.image.width = static_cast<png_uint_32>(straight.width());
    codec.image.height = static_cast<png_uint_32>(straight.height());
    codec.image.format = straightAlpha;
    codec.image.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = straight.isNull() ? 0 : PNG_IMAGE_PNG_SIZE_MAX(codec.image);
    QByteArray file(static_cast<qsizetype>(size), Qt::Uninitialized);
    const auto stride = static_cast<png_int_32>(straight.bytesPerLine());
    if (size == 0 || png_image_write_to_memory(&codec.image, file.data(), &size, 0,
                                               straight.constBits(), stride, nullptr) == 0)
        return {};
    file.truncate(static_cast<qsizetype>(size));
    return file.insert(headerEnd, textChunk(keyword, text));
}

}  // namespace zephyrix
