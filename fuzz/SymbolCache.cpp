// A file in the symbol cache, and the view that shows it.
#include <QtEndian>

#include "Surroundings.h"
#include "symbols/QKWeatherSymbols.h"
#include "ui/ImageView.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

constexpr int largestSide = 4096;  // pixels
const QString key = QStringLiteral("1300000+40.00+40.00+1.00.png");

std::uint32_t checksum(const char* bytes, qsizetype count) {
    std::uint32_t sum = 0xFFFFFFFFU;
    for (qsizetype i = 0; i < count; ++i) {
        sum ^= static_cast<std::uint8_t>(bytes[i]);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~sum;
}

/// The same with right checksums, without which a reader would look no further than the first
/// change. Each part of a PNG file: length, name, content, checksum.
QByteArray withRightChecksums(QByteArray png) {
    constexpr qsizetype signature = 8;
    constexpr qsizetype word = 4;
    qsizetype at = signature;
    while (at + 3 * word <= png.size()) {
        const qsizetype length = qFromBigEndian<quint32>(png.constData() + at);
        const qsizetype named = at + word;
        if (length > png.size() - at - 3 * word)
            break;
        const std::uint32_t sum = checksum(png.constData() + named, word + length);
        qToBigEndian(sum, png.data() + named + word + length);
        at += 3 * word + length;
    }
    return png;
}

void show(const QImage& image) {
    constexpr double scale = 2.0;
    static auto* const view = new ImageView;
    view->resize(40, 40);
    view->setImage(image);
    QImage row(QSize(80, 80), QImage::Format_ARGB32_Premultiplied);
    row.setDevicePixelRatio(scale);
    view->render(&row);
}

void readFromCache(const QByteArray& file) {
    QKWeatherSymbols::symbolCache().clear();
    writeFile(QKWeatherSymbols::documentsDir() + QLatin1Char('/') + key, file);
    const QImage image = QKWeatherSymbols::imageFromCacheForKey(key);
    if (image.isNull())
        return;
    expect(image.width() <= largestSide && image.height() <= largestSide, "no image is huge");
    expect(image.format() == QImage::Format_ARGB32_Premultiplied, "an image is ready to be drawn");
    expect(image.devicePixelRatio() > 0.0, "an image has a scale");
    show(image);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = bytesOf(data, size);
    readFromCache(bytes);
    readFromCache(withRightChecksums(bytes));
    return 0;
}
