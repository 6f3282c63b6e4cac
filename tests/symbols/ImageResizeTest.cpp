#include <cmath>

#include <QPainter>
#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "foundation/NamedException.h"
#include "symbols/ImageResize.h"

namespace zephyrix {
namespace {

using testing::filled;

constexpr auto highQuality = InterpolationQuality::High;
constexpr auto fit = ContentMode::ScaleAspectFit;
constexpr auto fill = ContentMode::ScaleAspectFill;

TEST(ImageResize, FitsAndFillsABoxByTheImagesSizeInPoints) {
    struct Case {
        QSize pixels;
        double scale;
        ContentMode mode;
        QSizeF box;
        QSize expected;
    };
    const Case cases[] = {
        {{64, 64}, 1.0, fit, {40, 30}, {30, 30}},
        {{64, 64}, 1.0, fill, {40, 30}, {40, 40}},
        {{64, 32}, 1.0, fit, {40, 30}, {40, 20}},
        {{64, 32}, 1.0, fill, {40, 30}, {60, 30}},
        {{90, 60}, 3.0, fit, {60, 60}, {60, 40}},       // 30 x 20 points
        {{100, 50}, 1.0, fit, {33.4, 33.4}, {34, 17}},  // 33.4 x 16.7: parts of pixels count
        {{8, 8}, 1.0, fit, {100, 0.25}, {1, 1}},
        {{8, 8}, 1.0, fit, {40, 0}, {}},
        {{}, 1.0, fit, {40, 40}, {}},
    };
    for (const Case& each : cases) {
        QImage image = filled(each.pixels, Qt::red);
        image.setDevicePixelRatio(each.scale);
        const QImage resized = resizedImageWithContentMode(image, each.mode, each.box, highQuality);
        EXPECT_EQ(resized.size(), each.expected.isValid() ? each.expected : QSize(0, 0));
        EXPECT_EQ(resized.devicePixelRatio(), 1.0);
    }
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

/// Rings that grow finer outwards: what a poor filter makes jagged or turns into other patterns.
QImage rings(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const double r2 = std::pow(x - side / 2.0, 2) + std::pow(y - side / 2.0, 2);
            image.setPixelColor(x, y, QColor(255, 255, 255, std::sin(r2 / side) > 0 ? 255 : 0));
        }
    return image;
}

/// The mean difference of the alpha values from the true mean over the area of each pixel.
double meanErrorAgainstAreaMean(const QImage& large, const QImage& small) {
    const double ratio = static_cast<double>(large.width()) / small.width();
    const auto covered = [&](int pixel, int step) {  // how much of a large pixel a small one covers
        return std::max(0.0, std::min((pixel + 1) * 1.0, (step + 1) * ratio) -
                                 std::max(pixel * 1.0, step * ratio));
    };
    double error = 0.0;
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x) {
            double sum = 0.0;
            for (int v = int(y * ratio); v < std::min(large.height(), int((y + 1) * ratio) + 1);
                 ++v)
                for (int u = int(x * ratio); u < std::min(large.width(), int((x + 1) * ratio) + 1);
                     ++u)
                    sum += covered(u, x) * covered(v, y) * qAlpha(large.pixel(u, v));
            error += std::abs(sum / (ratio * ratio) - qAlpha(small.pixel(x, y)));
        }
    return error / (small.width() * small.height());
}

TEST(ImageResize, HighQualityWeighsPixelsByTheirArea) {
    const QImage large = rings(256);
    const double error =
        meanErrorAgainstAreaMean(large, resizedImage(large, {40, 40}, highQuality));
    const double none =
        meanErrorAgainstAreaMean(large, resizedImage(large, {40, 40}, InterpolationQuality::None));
    std::printf("mean alpha error 256 to 40 px: %.2f (nearest pixel: %.2f)\n", error, none);
    EXPECT_LT(error, 1.5);
    EXPECT_GT(none, 30.0);  // the pattern is one that tells good from bad
}

TEST(ImageResize, EdgesOfAColourStayInThatColour) {
    QImage disc(200, 200, QImage::Format_ARGB32_Premultiplied);  // black where transparent
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::red);
    painter.drawEllipse(15, 15, 170, 170);
    painter.end();
    const QImage small = resizedImage(disc, {37, 37}, highQuality);
    int edges = 0;
    for (int y = 0; y < 37; ++y)
        for (int x = 0; x < 37; ++x) {
            const QRgb stored = reinterpret_cast<const QRgb*>(small.constScanLine(y))[x];
            EXPECT_NEAR(qRed(stored), qAlpha(stored), 1);
            EXPECT_EQ(qGreen(stored), 0);
            edges += qAlpha(stored) > 0 && qAlpha(stored) < 255 ? 1 : 0;
        }
    EXPECT_GT(edges, 50);
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
