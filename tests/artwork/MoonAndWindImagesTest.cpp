#include <array>
#include <cmath>
#include <cstdio>

#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "support/Contrast.h"

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
    struct Phase {
        double least, most;  // lit part for which this image is asked
        int side;            // +1 right, waxing; -1 left, waning; 0 both
        const char* name;
    };
    constexpr std::array<Phase, 8> phases{{{0.0, 0.03, 0, "new"},
                                           {0.03, 0.375, +1, "waxing crescent"},
                                           {0.375, 0.625, +1, "first quarter"},
                                           {0.625, 0.97, +1, "waxing gibbous"},
                                           {0.97, 1.0, 0, "full"},
                                           {0.625, 0.97, -1, "waning gibbous"},
                                           {0.375, 0.625, -1, "last quarter"},
                                           {0.03, 0.375, -1, "waning crescent"}}};
    double worst = 0;
    for (const SymbolSet& set : symbolSets())
        for (std::size_t i = 0; i < phases.size(); ++i) {
            const auto& [least, most, side, name] = phases[i];
            const Light light = lightOf(set, int(i) + 1);
            SCOPED_TRACE(set.folder.toStdString() + " " + name);
            const double middle = side == 0 ? (least < 0.5 ? 0 : 1) : (least + most) / 2;
            EXPECT_NEAR(light.part, middle, 0.03);
            EXPECT_TRUE(side == 0 ? std::abs(light.right) < 0.02 : light.right * side > 0.05)
                << "lies " << light.right << " radii to the right";
            worst = std::max(worst, std::abs(light.part - middle));
        }
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
    struct Case {
        const char* name;
        QColor ground;
        double least;
    };
    constexpr QColor dark(22, 28, 40);
    constexpr QColor light(250, 251, 253);
    for (const Case& row :
         {Case{"WindPfeilSquare", dark, 3}, Case{"WindPfeilSquare", light, 3},
          Case{"WindPfeilSquare-dark", dark, 12}, Case{"WindPfeilSquare-light", light, 12},
          Case{"WindLabelSquare-dark", dark, 1.5}, Case{"WindLabelSquare-light", light, 1.5}}) {
        const QImage image = catalogue().image(QLatin1String(row.name));
        const QColor ink = over(row.ground, image.pixelColor(120, 20));
        EXPECT_GE(contrast(ink, row.ground), row.least) << row.name;
        std::printf("%-24s %.1f : 1\n", row.name, contrast(ink, row.ground));
    }
}
