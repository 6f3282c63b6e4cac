#include <QBuffer>
#include <QColorSpace>
#include <gtest/gtest.h>

#include "png/PngImage.h"

namespace zephyrix {
namespace {

constexpr int longestSide = 64;  // pixels

/// Every colour with every alpha in some pixel of it.
QImage manyColours() {
    QImage image(40, 30, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgba(x * 6, y * 8, (x * y) % 256, (x * 7 + y * 11) % 256));
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QByteArray writtenByToolkit(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
    return bytes;
}

// The toolkit's codec is the judge of ours, and ours of its.
TEST(PngImage, ReadsWhatOthersWriteAndIsReadByThem) {
    const QImage image = manyColours();
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGB32, QImage::Format_Indexed8,
                              QImage::Format_Grayscale8, QImage::Format_Mono}) {
        const QByteArray file = writtenByToolkit(image.convertToFormat(format));
        EXPECT_EQ(readPng(file, longestSide),
                  QImage::fromData(file).convertToFormat(QImage::Format_ARGB32_Premultiplied))
            << format;
    }
    const QByteArray own = pngOf(image, "Scale", "2.5");
    QImage byToolkit = QImage::fromData(own);
    byToolkit.setColorSpace({});  // the file says that its colours are those of screens
    EXPECT_EQ(byToolkit.text(QStringLiteral("Scale")), QStringLiteral("2.5"));
    EXPECT_EQ(byToolkit.convertToFormat(image.format()), readPng(own, longestSide));
    EXPECT_EQ(pngText(own, "Scale"), "2.5");
    EXPECT_TRUE(pngText(own, "Scal").isEmpty());
}

TEST(PngImage, WhatIsNoWholeImageOfThatSizeIsNone) {
    const QByteArray whole = pngOf(manyColours(), "Scale", "1");
    EXPECT_FALSE(readPng(whole, 40).isNull());
    EXPECT_TRUE(readPng(whole, 39).isNull());
    for (qsizetype length = 0; length < whole.size(); length += 7)
        EXPECT_TRUE(readPng(whole.left(length), longestSide).isNull()) << length;
    EXPECT_TRUE(pngOf(QImage(), "Scale", "1").isEmpty());
}

}  // namespace
}  // namespace zephyrix
