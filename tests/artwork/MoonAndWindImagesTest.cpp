#include <cmath>
#include <cstdio>

#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "support/Contrast.h"
#include "support/DataLines.h"

using namespace zephyrix::testing;

namespace {

constexpr double kMiddle = kMasterSize / 2.0;

double fromMiddle(int x, int y) {
    return std::hypot(x + 0.5 - kMiddle, y + 0.5 - kMiddle);
}

bool isBright(QRgb pixel) {
    return qAlpha(pixel) > 200 && qGray(pixel) > 150;
}

// Of the moon's disc: how much is lit, 0 to 1, and how far the lit part lies to the right, in
// radii.
struct Light {
    double part = 0;
    double right = 0;
};

Light lightOf(const SymbolSet& set, int phase) {
    const QImage moon = set.image(QStringLiteral("moon%1").arg(phase));
    int disc = 0;
    double sum = 0;
    const int lit = countPixels(moon, [&](int x, int y, QRgb pixel) {
        const bool inside = fromMiddle(x, y) < set.moonRadius;
        disc += inside ? 1 : 0;
        const bool bright = inside && isBright(pixel);
        sum += bright ? (x + 0.5 - kMiddle) / set.moonRadius : 0;
        return bright;
    });
    return {double(lit) / disc, lit == 0 ? 0 : sum / lit};
}

int opaqueInRow(const QImage& image, int row) {
    return countPixels(image,
                       [&](int, int y, QRgb pixel) { return y == row && qAlpha(pixel) > 128; });
}

SymbolSet catalogue() {
    return {QStringLiteral(":/zephyrix/images"), 0};
}

}  // namespace

TEST(MoonImages, LitPartLiesInItsPhasesRangeAndOnItsSide) {
    double worst = 0;
    for (const SymbolSet& set : symbolSets())
        forEachLine("artwork/moons.tsv", [&](const DataLine& line) {
            SCOPED_TRACE(set.folder.toStdString());
            const Light light = lightOf(set, static_cast<int>(line.integer(0)));
            const double side = line.number(3);
            const double middle = side != 0              ? (line.number(1) + line.number(2)) / 2
                                  : line.number(1) < 0.5 ? 0
                                                         : 1;
            EXPECT_NEAR(light.part, middle, 0.03);
            EXPECT_TRUE(side == 0 ? std::abs(light.right) < 0.02 : light.right * side > 0.05)
                << "lies " << light.right << " radii to the right";
            worst = std::max(worst, std::abs(light.part - middle));
        });
    std::printf("worst lit part off the middle of its range: %.4f\n", worst);
}

TEST(WindImages, UnturnedArrowPointsDownWithItsDotOnTop) {
    for (const char* name : {"WindPfeilSquare", "WindPfeilSquare-light", "WindPfeilSquare-dark"}) {
        SCOPED_TRACE(name);
        const QImage arrow = catalogue().image(QLatin1String(name));
        ASSERT_EQ(arrow.size(), QSize(kMasterSize, kMasterSize));
        EXPECT_GT(opaqueInRow(arrow, 205), 2 * opaqueInRow(arrow, 225)) << "narrower downwards";
        EXPECT_GT(opaqueInRow(arrow, 225), opaqueInRow(arrow, 235));
        EXPECT_GT(opaqueInRow(arrow, 20), 15) << "the dot, where the wind comes from";
        const QImage mirrored = arrow.mirrored(true, false);
        const int uneven = countPixels(arrow, [&](int x, int y, QRgb pixel) {
            return std::abs(qAlpha(pixel) - qAlpha(mirrored.pixel(x, y))) > 32;
        });
        EXPECT_EQ(uneven, 0) << "turns about the middle of the canvas";
        const int inside = countPixels(arrow, [](int x, int y, QRgb pixel) {
            return fromMiddle(x, y) < 72 && qAlpha(pixel) > 0;
        });
        EXPECT_EQ(inside, 0) << "the middle is the number's place";
    }
}

TEST(WindImages, InkStandsOutFromItsGround) {
    forEachLine("artwork/wind_inks.tsv", [](const DataLine& line) {
        const QColor ground = line[1] == u"dark" ? QColor(22, 28, 40) : QColor(250, 251, 253);
        const QColor ink = over(ground, catalogue().image(line[0]).pixelColor(120, 20));
        EXPECT_GE(contrast(ink, ground), line.number(2));
        std::printf("%-24s %.1f : 1\n", qPrintable(line[0]), contrast(ink, ground));
    });
}
