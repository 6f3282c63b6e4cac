#include <cmath>

#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "foundation/NamedException.h"
#include "support/DataLines.h"
#include "symbols/ImageResize.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr auto highQuality = InterpolationQuality::High;
constexpr auto fit = ContentMode::ScaleAspectFit;

TEST(ImageResize, FitsAndFillsABoxByTheImagesSizeInPoints) {
    forEachLine("symbols/boxes.tsv", [](const DataLine& line) {
        const auto size = [&](int column) {
            return QSizeF(line.number(column), line.number(column + 1));
        };
        QImage image = filled(size(0).toSize(), Qt::red);
        image.setDevicePixelRatio(line.number(2));
        const QImage resized = resizedImageWithContentMode(
            image, line[3] == u"fit" ? fit : ContentMode::ScaleAspectFill, size(4), highQuality);
        EXPECT_EQ(resized.size(), size(6).toSize());
        EXPECT_EQ(resized.devicePixelRatio(), 1.0);
    });
}

TEST(ImageResize, RaisesForOtherContentModes) {
    const QImage image = filled({4, 4}, Qt::red);
    for (const int mode : {0, 3, -1}) {
        try {
            (void)resizedImageWithContentMode(image, ContentMode{mode}, {8, 8}, highQuality);
            ADD_FAILURE() << mode;
        } catch (const NamedException& exception) {
            EXPECT_EQ(exception.name(), QStringLiteral("InvalidArgumentException"));
            EXPECT_EQ(exception.reason(), QStringLiteral("Unsupported content mode: %1").arg(mode));
        }
    }
    EXPECT_TRUE(resizedImageWithContentMode({}, ContentMode{0}, {8, 8}, highQuality).isNull());
}

TEST(ImageResize, HighQualityWeighsPixelsByTheirArea) {
    QImage board(256, 256, QImage::Format_ARGB32_Premultiplied);  // every other pixel white
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            board.setPixelColor(x, y, QColor(255, 255, 255, (x + y) % 2 * 255));
    const QImage small = resizedImage(board, {40, 40}, highQuality);
    double worst = 0.0;  // from half white, the mean of any area
    for (int pixel = 0; pixel < 40 * 40; ++pixel)
        worst = std::max(worst, std::abs(qAlpha(small.pixel(pixel % 40, pixel / 40)) - 127.5));
    std::printf("worst alpha error of a chess board, 256 to 40 px: %.1f\n", worst);
    EXPECT_LT(worst, 12.0);
}

QString lettersOf(const QImage& image) {
    QString letters;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            letters += QChar('a' + qRed(image.pixel(x, y)) / 20);
        letters += QLatin1Char('/');
    }
    return letters;
}

TEST(ImageResize, TurnsEveryOrientationUpright) {
    QImage image(3, 2, QImage::Format_RGB32);
    for (int i = 0; i < 6; ++i)
        image.setPixel(i % 3, i / 3, qRgb(i * 20, 0, 0));
    ASSERT_EQ(lettersOf(image), QStringLiteral("abc/def/"));
    const struct {
        ImageOrientation orientation;
        const char* upright;  // by hand: turned by half, a quarter left, a quarter right; mirrored
    } cases[] = {
        {ImageOrientation::Up, "abc/def/"},     {ImageOrientation::UpMirrored, "cba/fed/"},
        {ImageOrientation::Down, "fed/cba/"},   {ImageOrientation::DownMirrored, "def/abc/"},
        {ImageOrientation::Left, "cf/be/ad/"},  {ImageOrientation::LeftMirrored, "ad/be/cf/"},
        {ImageOrientation::Right, "da/eb/fc/"}, {ImageOrientation::RightMirrored, "fc/eb/da/"},
    };
    for (const auto& each : cases) {
        const QString upright = QString::fromLatin1(each.upright);
        const QSize size = upright.size() == 8 ? QSize(3, 2) : QSize(2, 3);
        EXPECT_EQ(lettersOf(resizedImage(image, size, highQuality, each.orientation)), upright);
    }
}

TEST(ImageResize, KnowsAndAddsAlpha) {
    QImage indexed(1, 1, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(0, 200, 0)});
    indexed.fill(0);
    for (const QImage& opaque :
         {indexed, filled({1, 1}, qRgb(0, 200, 0)).convertToFormat(QImage::Format_RGB32)}) {
        EXPECT_FALSE(hasAlpha(opaque));
        const QImage image = imageWithAlpha(opaque);
        EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_EQ(image.pixel(0, 0), qRgb(0, 200, 0));
    }
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGBA8888}) {
        const QImage image(1, 1, format);
        EXPECT_TRUE(hasAlpha(image));
        EXPECT_EQ(imageWithAlpha(image).format(), format);
    }
    EXPECT_FALSE(hasAlpha(QImage(1, 1, QImage::Format_Alpha8)));  // alpha, but no colour
}

}  // namespace
}  // namespace zephyrix
