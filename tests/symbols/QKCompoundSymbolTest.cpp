#include <cmath>
#include <limits>

#include <QDir>
#include <QPainter>
#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "support/DataLines.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class CompoundSymbol : public SymbolSet {
  protected:
    QKCompoundSymbol symbols;
};

constexpr int spotParts = 8;

/// Transparent but for a spot in the middle, an eighth of the side.
QImage spot() {
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(28, 28, 64 / spotParts, 64 / spotParts, Qt::white);
    return image;
}

/// The only spot of a picture: its centre and its side, in pixels from the upper left.
struct Spot {
    double x = 0.0;
    double y = 0.0;
    double side = 0.0;
};

Spot spotOf(const QImage& image) {
    Spot found;
    double weight = 0.0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const double alpha = qAlpha(image.pixel(x, y)) / 255.0;
            weight += alpha;
            found.x += alpha * (x + 0.5);
            found.y += alpha * (y + 0.5);
        }
    return {found.x / weight, found.y / weight, std::sqrt(weight)};
}

TEST_F(CompoundSymbol, DrawsEachLayerWhereItsCaseWantsIt) {
    double worst = 0.0;
    for (const QStringList& line : dataLines(QStringLiteral("symbols/layout.txt"))) {
        QDir(setFolder()).removeRecursively();
        QDir().mkpath(setFolder());
        add(line[0], spot());
        const double x = line[3].toDouble();
        const double y = line[4].toDouble();
        QKWeatherSymbols::startAfresh();
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            SCOPED_TRACE(::testing::Message() << qPrintable(line.join(u' ')) << " @" << scale);
            symbols.setWinscale(scale);
            const QImage picture = symbols.symbolForCode(Number(line[1].toInt()), QSizeF(80, 60));
            ASSERT_EQ(picture.size(), QSize(int(80 * scale), int(60 * scale)));
            EXPECT_EQ(picture.devicePixelRatio(), scale);
            const Spot found = spotOf(picture);
            EXPECT_NEAR(found.x, x * 80 * scale, 0.51);
            EXPECT_NEAR(found.y, y * 60 * scale, 0.51);
            const double side = std::sqrt(80.0 * 60.0) * scale * line[2].toDouble() / spotParts;
            EXPECT_NEAR(found.side, side, 0.1);
            worst = std::max(
                {worst, std::abs(found.x - x * 80 * scale), std::abs(found.y - y * 60 * scale)});
        }
    }
    std::printf("worst distance of a layer's centre: %.3f pixels a side\n", worst);
}

TEST_F(CompoundSymbol, StacksPrecipitationBodyCloudAndWarning) {
    const QStringList lowestFirst{QStringLiteral("prec2002"), QStringLiteral("sun"),
                                  QStringLiteral("cloud6"), QStringLiteral("warn3")};
    for (const QString& layer : lowestFirst) {
        addFilled(layer);
        QKWeatherSymbols::startAfresh();
        const QImage picture = symbols.symbolForCode(Number(1320023), QSizeF(40, 40));
        EXPECT_EQ(picture.pixelColor(20, 20), colourOf(layer)) << layer.toStdString();
    }
    symbols.setIgnoreCelestrial(true);
    QFile::remove(setFolder() + QStringLiteral("/warn3.png"));
    QFile::remove(setFolder() + QStringLiteral("/cloud6.png"));
    QKWeatherSymbols::startAfresh();
    const QImage picture = symbols.symbolForCode(Number(1320023), QSizeF(40, 40));
    EXPECT_EQ(picture.pixelColor(20, 20), colourOf(lowestFirst.first()));
}

TEST_F(CompoundSymbol, WarningCoversTheLowerLeftPointsForPixels) {
    addFilled(QStringLiteral("warn1"));
    symbols.setWinscale(2.5);
    const QImage picture = symbols.symbolForCode(Number(1), QSizeF(40, 20));
    ASSERT_EQ(picture.size(), QSize(100, 50));
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(qAlpha(picture.pixel(x, y)) != 0, x < 40 && y >= 30) << x << "," << y;
}

TEST_F(CompoundSymbol, LayersStandUprightAndKeepSoftEdgesClean) {
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::red);
    painter.drawEllipse(QPointF(12, 12), 11.3, 11.3);  // in the upper left
    painter.end();
    add(QStringLiteral("cloud1"), image);
    const QImage picture = symbols.symbolForCode(Number(100000), QSizeF(37, 37));
    EXPECT_EQ(picture.pixel(7, 7), qRgb(255, 0, 0));
    EXPECT_EQ(qAlpha(picture.pixel(7, 30)), 0);
    EXPECT_EQ(qAlpha(picture.pixel(30, 7)), 0);
    for (int y = 0; y < 37; ++y)
        for (int x = 0; x < 37; ++x) {
            const QRgb stored = reinterpret_cast<const QRgb*>(picture.constScanLine(y))[x];
            ASSERT_NEAR(qRed(stored), qAlpha(stored), 1);  // premultiplied red and nothing else
            ASSERT_EQ(qGreen(stored), 0);
        }
}

TEST_F(CompoundSymbol, AsksForTheImagesThatTheDigitsName) {
    const auto lines = dataLines(QStringLiteral("symbols/layers.txt"));
    for (const QStringList& line : lines)
        for (const QString& image : line.mid(1, 4))
            if (image != u"-" && !QFile::exists(setFolder() + "/" + image + ".png"))
                addFilled(image);
    for (const QStringList& line : lines) {
        const std::uint64_t code = line[0].toULongLong();
        symbols.prepareInstanceForSymbolCode(code);
        QStringList found{
            nameOf(symbols.precForSymbol(code)), nameOf(symbols.celestialBodyForSymbol(code)),
            nameOf(symbols.cloudForSymbol(code)), nameOf(symbols.warningForSymbol(code))};
        for (QString& image : found)
            image = image.isEmpty() ? QStringLiteral("-") : image;
        EXPECT_EQ(found, line.mid(1, 4)) << qPrintable(line[0]);
    }
}

// From one code to the next through one instance; twice, so that the second time comes from the
// cache, which must not stand in the way.
TEST_F(CompoundSymbol, KeepsTheLightningOfTheSymbolBeforeWhereACodeSaysNothing) {
    symbols.setUseCache(true);
    for (int round = 0; round < 2; ++round)
        forEachLine("symbols/lightning.tsv", [this](const DataLine& line) {
            (void)symbols.symbolForCode(Number(line.integer(0)), QSizeF(8, 8));
            EXPECT_EQ(symbols.lightning(), line.isYes(1));
        });
    symbols.specialForSymbol(20);
    EXPECT_TRUE(symbols.lightning());
}

TEST_F(CompoundSymbol, ACachedPictureIsTheOneDrawnFirstWhateverTheLightning) {
    addFilled(QStringLiteral("cloud1"));
    addFilled(QStringLiteral("cloud4"));
    symbols.setUseCache(true);
    const QSizeF size(8, 8);
    EXPECT_EQ(nameOf(symbols.symbolForCode(Number(100020), size)), QStringLiteral("cloud4"));
    EXPECT_EQ(nameOf(symbols.symbolForCode(Number(100010), size)), QStringLiteral("cloud4"));
    EXPECT_EQ(nameOf(symbols.symbolForCode(Number(100000), size)), QStringLiteral("cloud1"));
    EXPECT_EQ(nameOf(symbols.symbolForCode(Number(100010), size)), QStringLiteral("cloud4"));
    symbols.setUseCache(false);
    EXPECT_EQ(nameOf(symbols.symbolForCode(Number(100010), size)), QStringLiteral("cloud1"));
}

TEST_F(CompoundSymbol, ShowsTheMoonOfTheDate) {
    symbols.setUseCache(true);
    for (int image = 1; image <= 8; ++image)
        addFilled(QStringLiteral("moon%1").arg(image));
    forEachLine("symbols/moons.tsv", [this](const DataLine& line) {
        const auto date = Instant::fromDateTime(QDateTime::fromString(line[0], Qt::ISODate));
        const QImage picture = symbols.symbolForCode(Number(2999999), QSizeF(8, 8), date);
        EXPECT_EQ(nameOf(picture), QStringLiteral("moon") + line[1]);
        EXPECT_TRUE(QKWeatherSymbols::symbolCache().contains(
            QStringLiteral("%1+0+2999999+8.00+8.00+1.00.png").arg(line[1])));
    });
    EXPECT_EQ(nameOf(symbols.symbolForCode(Number(2999999), QSizeF(8, 8))),
              QStringLiteral("moon8"));
}

TEST_F(CompoundSymbol, FieldsAfterACode) {
    const QSizeF size(8, 8);
    (void)symbols.symbolForCode(Number(2000000), size);
    EXPECT_TRUE(symbols.celestrial() && symbols.moon() && !symbols.sun());
    (void)symbols.symbolForCode(Number(1000000), size);
    EXPECT_TRUE(symbols.celestrial() && !symbols.moon() && symbols.sun());
    EXPECT_EQ(symbols.moonphase(), 8);  // a sun leaves it
    (void)symbols.symbolForCode(Number(9000000), size);
    EXPECT_TRUE(symbols.celestrial() && symbols.moon());
    (void)symbols.symbolForCode(Number(9000001), size);
    EXPECT_FALSE(symbols.celestrial() || symbols.moon() || symbols.sun());
    symbols.prepareInstanceForSymbolCode(99990);
    EXPECT_FALSE(symbols.precipitation());
    (void)symbols.precForSymbol(99990);
    EXPECT_TRUE(symbols.precipitation());  // the image's rule is the wider one
}

TEST_F(CompoundSymbol, KeysByteForByte) {
    symbols.setUseCache(true);
    forEachLine("symbols/keys.tsv", [this](const DataLine& line) {
        QKWeatherSymbols::clearCache();
        setScreenScale(line.number(3));
        symbols.setIgnoreCelestrial(line.isYes(4));
        const Number code =
            line[0].contains(u'.') ? Number(line.number(0)) : Number(line.integer(0));
        EXPECT_FALSE(symbols.symbolForCode(code, {line.number(1), line.number(2)}).isNull());
        EXPECT_EQ(QKWeatherSymbols::symbolCache().keys(), QStringList{line[5]});
    });
}

TEST_F(CompoundSymbol, RoundsTheBitmapAndRefusesImpossibleSizes) {
    EXPECT_EQ(symbols.winscale(), 1.0);
    setScreenScale(1.5);
    QKCompoundSymbol made;
    const QImage picture = made.symbolForCode(Number(0), QSizeF(33.3, 20.7));  // 49.95 x 31.05
    EXPECT_EQ(picture.size(), QSize(50, 31));
    EXPECT_EQ(picture.devicePixelRatio(), 1.5);
    EXPECT_EQ(picture.format(), QImage::Format_ARGB32_Premultiplied);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QSizeF size : {QSizeF(0, 0), QSizeF(0, 10), QSizeF(-4, 4), QSizeF(nan, 4),
                              QSizeF(1e30, 1e30), QSizeF(0.2, 10)})
        EXPECT_TRUE(made.symbolForCode(Number(1100001), size).isNull());
}

}  // namespace
}  // namespace zephyrix
