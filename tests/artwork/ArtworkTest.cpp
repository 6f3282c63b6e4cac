#include <array>
#include <map>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "support/Contrast.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbolscheme/SymbolScheme.h"

using namespace zephyrix;
using namespace zephyrix::testing;

namespace {

constexpr QColor kDarkPanel(22, 28, 40);
constexpr QColor kLightPanel(250, 251, 253);

QString precName(int number) {
    return QString::asprintf("prec%04d", number);
}

bool isAmber(QRgb pixel) {
    return qAlpha(pixel) == 255 && qRed(pixel) > 245 && qGreen(pixel) > 145 && qBlue(pixel) < 130;
}

// Pixels on the edge of a master of more than this alpha: a picture that is cut.
int inkedEdgePixels(const QImage& image, int alpha) {
    return countPixels(image, [=](int x, int y, QRgb pixel) {
        const bool edge = x == 0 || y == 0 || x == kMasterSize - 1 || y == kMasterSize - 1;
        return edge && qAlpha(pixel) > alpha;
    });
}

// The most of an image that a reader can tell from the ground: pixels of at least this contrast.
int visiblePixels(const QImage& image, const QColor& ground, double least) {
    return countPixels(image, [&](int, int, QRgb pixel) {
        return qAlpha(pixel) > 0 &&
               contrast(over(ground, QColor::fromRgba(pixel)), ground) >= least;
    });
}

}  // namespace

TEST(Artwork, EachSetHoldsTheSchemesImagesAndNothingElse) {
    QStringList wanted = namesOfScheme();
    wanted.sort();
    EXPECT_EQ(wanted.removeDuplicates(), 0);
    for (const SymbolSet& set : symbolSets()) {
        QStringList found = set.names();
        found.sort();
        EXPECT_EQ(found.join(QLatin1Char(' ')).toStdString(),
                  wanted.join(QLatin1Char(' ')).toStdString())
            << set.folder.toStdString();
    }
}

TEST(Artwork, ImagesAreWholeSquareAndNotCutByTheirEdges) {
    for (const SymbolSet& set : symbolSets())
        for (const QString& name : set.names()) {
            SCOPED_TRACE((set.folder + QLatin1Char('/') + name).toStdString());
            const QImage image = set.image(name);
            ASSERT_EQ(image.size(), QSize(kMasterSize, kMasterSize));
            EXPECT_GT(inkOf(image), 250.0) << "too little to be seen";
            EXPECT_EQ(inkedEdgePixels(image, 8), 0);
        }
}

TEST(Artwork, ImagesAreSeenOnDarkAndOnLightGround) {
    constexpr std::array least{1.5, 7.0};  // contrast, per set
    constexpr int kEnough = 120;           // pixels of the master, about a line once across it
    for (std::size_t k = 0; k < symbolSets().size(); ++k)
        for (const QString& name : symbolSets()[k].names())
            for (const QColor& ground : {kDarkPanel, kLightPanel})
                EXPECT_GE(visiblePixels(symbolSets()[k].image(name), ground, least[k]), kEnough)
                    << "set " << k << ", " << name.toStdString() << " on "
                    << (ground == kDarkPanel ? "dark" : "light");
}

TEST(Artwork, LightningIsDrawnWhereTheNumberMeansIt) {
    for (const LayerImage& image : kPrecipitationImages) {
        if (image.kind == "alert")
            continue;  // an amber sign
        const int special = image.value % 10;
        const bool lightning = (special >= 2 && special <= 5) || image.value == 9991;
        const int amber = countPixels(symbolSets()[0].image(precName(image.value)),
                                      [](int, int, QRgb pixel) { return isAmber(pixel); });
        EXPECT_EQ(amber > 300, lightning) << image.image << ": " << amber << " amber pixels";
    }
}

TEST(Artwork, StrongerWeatherIsDrawnWithMore) {
    constexpr std::array order{"light", "moderate", "heavy", "severe"};
    for (const SymbolSet& set : symbolSets()) {
        std::map<std::string_view, std::pair<std::size_t, double>> strongest;
        for (const LayerImage& image : kPrecipitationImages) {
            if (image.strength == "-")
                continue;
            const auto rank =
                std::size_t(std::find(order.begin(), order.end(), image.strength) - order.begin());
            ASSERT_LT(rank, order.size()) << image.image;
            const double ink = inkOf(set.image(precName(image.value)));
            auto& [lastRank, lastInk] = strongest[image.kind];
            EXPECT_TRUE(rank <= lastRank || ink > lastInk)
                << image.image << ": " << ink << " after " << lastInk;
            std::tie(lastRank, lastInk) = std::pair(rank, ink);
        }
    }
}

TEST(Artwork, WithoutACloudOnlyItsShadeIsMissing) {
    const SymbolSet& colour = symbolSets()[0];
    for (const LayerImage& image : kPrecipitationImages) {
        if (image.value / 100 % 10 == 9)
            continue;
        const QImage shaded = colour.image(precName(image.value));
        const QImage bare = colour.image(QStringLiteral("noshadow_") + precName(image.value));
        const int more = countPixels(bare, [&](int x, int y, QRgb pixel) {
            return qAlpha(pixel) > qAlpha(shaded.pixel(x, y));
        });
        EXPECT_EQ(more, 0) << image.image;
        const bool falls =
            image.value < 7000 && image.kind != "drifting-snow" && image.kind != "ice-crystals";
        EXPECT_EQ(inkOf(bare) < inkOf(shaded), falls) << image.image;
    }
}

TEST(Artwork, ComposedSymbolsAreNotCutByTheirCanvas) {
    QKCompoundSymbol symbols;
    symbols.setWinscale(3);
    for (const std::uint32_t code : everySymbolCode()) {
        const QImage symbol = symbols.symbolForCode(Number(qint64(code)), QSizeF(80, 80));
        EXPECT_EQ(inkedEdgePixels(symbol, 24), 0) << code;
        EXPECT_GT(inkOf(symbol), 1500.0) << code << " is hardly there";
    }
}
