#include <cmath>
#include <limits>

#include <QDir>
#include <QPainter>
#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"

namespace zephyrix {
namespace {

using testing::filled;
using testing::setScreenScale;

class CompoundSymbol : public testing::SymbolSet {
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

struct PlacedCase {
    const char* layer;  // the only image of the set
    int code;
    double scale;  // of the layer to the picture
    double x;      // its centre from the left and the top of the picture
    double y;
};

// Each line of the layout, asked by its codes and read off the picture.
constexpr PlacedCase placedCases[] = {
    {"cloud1", 100000, 1.0, 0.5, 0.5},       // a cloud alone fills the picture
    {"prec2000", 20000, 1.0, 0.5, 0.2},      // precipitation without a cloud
    {"prec2000", 720000, 1.0, 0.5, 0.4512},  // and below one
    {"cloud2", 220000, 0.9, 0.52, 0.375},
    {"sun", 1120000, 0.8, 0.4, 0.375},  // a small cloud and precipitation
    {"sun", 1420000, 0.8, 0.4, 0.375},
    {"moon8", 2420000, 0.75, 0.3975, 0.375},
    {"cloud4", 1420000, 0.95, 0.615, 0.416},
    {"prec2000", 1120000, 1.0, 0.5391, 0.5},
    {"sun", 1100000, 0.9, 0.4, 0.475},  // a small cloud alone
    {"moon8", 2100000, 0.84, 0.4063, 0.475},
    {"cloud1", 1100000, 1.0, 0.6397, 0.5303},
    {"sun", 1220000, 0.8, 0.435, 0.3516},  // another cloud and precipitation
    {"sun", 1820000, 0.8, 0.435, 0.3516},
    {"moon8", 2320000, 0.75, 0.435, 0.3516},
    {"cloud5", 1520000, 0.925, 0.5127, 0.422},
    {"prec2000", 1220000, 1.0, 0.5, 0.5},
    {"sun", 1020000, 0.8, 0.5, 0.5},       // no cloud and precipitation
    {"moon8", 2920000, 0.75, 0.5, 0.5},    // 920000: a 9 that does not count
    {"sun", 1000000, 0.8, 0.435, 0.4492},  // a clear sky
    {"sun", 1900000, 0.8, 0.435, 0.4492},
    {"moon8", 2500000, 0.75, 0.435, 0.4492},
    {"cloud8", 1800000, 0.925, 0.5127, 0.5193},
    {"sun", 1999999, 1.0, 0.5, 0.5},  // nothing is moved
    {"prec9999", 999999, 1.0, 0.5, 0.5},
    {"prec9999", 99990, 1.0, 0.5, 0.5},  // drawn, but laid out as if it were not
};

TEST_F(CompoundSymbol, DrawsEachLayerWhereItsCaseWantsIt) {
    double worst = 0.0;
    for (const PlacedCase& each : placedCases) {
        QDir(setFolder()).removeRecursively();
        QDir().mkpath(setFolder());
        add(QString::fromLatin1(each.layer), spot());
        QKWeatherSymbols::startAfresh();
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            SCOPED_TRACE(::testing::Message() << each.code << " " << each.layer << " @" << scale);
            symbols.setWinscale(scale);
            const QImage picture = symbols.symbolForCode(Number(each.code), QSizeF(80, 60));
            ASSERT_EQ(picture.size(), QSize(int(80 * scale), int(60 * scale)));
            EXPECT_EQ(picture.devicePixelRatio(), scale);
            const Spot found = spotOf(picture);
            EXPECT_NEAR(found.x, each.x * 80 * scale, 0.51);
            EXPECT_NEAR(found.y, each.y * 60 * scale, 0.51);
            const double side = std::sqrt(80.0 * 60.0) * scale * each.scale / spotParts;
            EXPECT_NEAR(found.side, side, 0.1);
            worst = std::max({worst, std::abs(found.x - each.x * 80 * scale),
                              std::abs(found.y - each.y * 60 * scale)});
        }
    }
    std::printf("worst distance of a layer's centre: %.3f pixels a side\n", worst);
}

TEST_F(CompoundSymbol, ComputesRectanglesWithoutRounding) {
    const QRectF canvas(0, 0, 100, 50);
    EXPECT_EQ(QKCompoundSymbol::scaleAndCenter(canvas, 0.8, canvas), QRectF(10, 5, 80, 40));
    EXPECT_EQ(QKCompoundSymbol::scaleAndCenter(QRectF(10, 10, 20, 20), 0.5, canvas),
              QRectF(30, 17.5, 10, 10));
    EXPECT_EQ(QKCompoundSymbol::positionAtCenter(QRectF(10, 5, 80, 40), {0.4, 0.25}, canvas),
              QRectF(0, 17.5, 80, 40));
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
    const struct {
        int code;
        QStringList images;  // precipitation, body, cloud, warning
    } cases[] = {
        {1100000, {"", "sun", "cloud1", ""}},
        {2000000, {"", "moon8", "", ""}},
        {2999999, {"prec9999", "moon8", "", "warn9"}},
        {3000000, {"", "", "", ""}},  // a place for a body, but no body
        {9999990, {"prec9999", "", "", ""}},
        {9999992, {"prec9999", "", "", "storm"}},
        {9999982, {"prec9998", "", "", "warn2"}},  // storm only from 9999990 on
        {9999, {"", "", "", "warn9"}},
        {10000, {"prec1000", "", "", ""}},
        {900000, {"", "", "", ""}},  // there is no ninth cloud
        {800000, {"", "", "cloud8", ""}},
        {500020, {"", "", "cloud8", ""}},  // lightning: three further on
        {600020, {"", "", "", ""}},        // and no cloud beyond the eighth
        {1121050, {"prec2105", "sun", "cloud4", ""}},
        {921050, {"noshadow_prec2105", "", "", ""}},
        {929050, {"prec2905", "", "", ""}},  // a 9 in the second place has its shadow
        {821050, {"prec2105", "", "", ""}},  // 8 and lightning: 11, no cloud
    };
    for (const auto& each : cases)
        for (const QString& image : each.images)
            if (!image.isEmpty() && !QFile::exists(setFolder() + "/" + image + ".png"))
                addFilled(image);
    for (const auto& each : cases) {
        const auto code = static_cast<std::uint64_t>(each.code);
        symbols.prepareInstanceForSymbolCode(code);
        EXPECT_EQ(
            (QStringList{
                nameOf(symbols.precForSymbol(code)), nameOf(symbols.celestialBodyForSymbol(code)),
                nameOf(symbols.cloudForSymbol(code)), nameOf(symbols.warningForSymbol(code))}),
            each.images)
            << each.code;
    }
}

TEST_F(CompoundSymbol, KeepsTheLightningOfTheSymbolBeforeWhereACodeSaysNothing) {
    // From one code to the next through one instance; twice, so that the second time comes from
    // the cache, which must not stand in the way.
    const struct {
        int code;
        bool lightning;
    } sequence[] = {
        {100020, true},  {100010, true},  {100090, true},  {100019, true},  {100009, false},
        {100010, false}, {100090, false}, {100059, true},  {100060, false}, {199909, false},
        {199910, true},  {199899, false}, {199819, false}, {199919, true},  {100089, false},
        {100020, true},  {100091, false}, {100020, true},  {100000, false},
    };
    symbols.setUseCache(true);
    for (int round = 0; round < 2; ++round)
        for (const auto& each : sequence) {
            (void)symbols.symbolForCode(Number(each.code), QSizeF(8, 8));
            EXPECT_EQ(symbols.lightning(), each.lightning) << each.code << " round " << round;
        }
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
    // The principal phases of June and July 2015 as almanacs give them (UTC), and days between.
    const struct {
        const char* time;
        int image;
    } nights[] = {
        {"2015-06-16T14:05:00Z", 1}, {"2015-06-20T12:00:00Z", 2}, {"2015-06-24T11:03:00Z", 3},
        {"2015-06-28T12:00:00Z", 4}, {"2015-07-02T02:20:00Z", 5}, {"2015-07-05T12:00:00Z", 6},
        {"2015-07-08T20:24:00Z", 7}, {"2015-07-12T12:00:00Z", 8},
    };
    symbols.setUseCache(true);
    for (const auto& night : nights)
        addFilled(QStringLiteral("moon%1").arg(night.image));
    for (const auto& night : nights) {
        const auto date = Instant::fromDateTime(
            QDateTime::fromString(QString::fromLatin1(night.time), Qt::ISODate));
        const QImage picture = symbols.symbolForCode(Number(2999999), QSizeF(8, 8), date);
        EXPECT_EQ(nameOf(picture), QStringLiteral("moon%1").arg(night.image)) << night.time;
        EXPECT_TRUE(QKWeatherSymbols::symbolCache().contains(
            QStringLiteral("%1+0+2999999+8.00+8.00+1.00.png").arg(night.image)));
    }
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
    const struct {
        Number code;
        QSizeF size;
        double screenScale;
        bool ignoreCelestrial;
        const char* key;
    } cases[] = {
        {Number(1100000), {40, 40}, 2.0, false, "0+1100000+40.00+40.00+2.00.png"},
        {Number(1100000), {40, 40}, 2.0, true, "1+1100000+40.00+40.00+2.00.png"},
        {Number(2100000), {8, 4.5}, 1.0, false, "8+0+2100000+8.00+4.50+1.00.png"},
        {Number(3000000), {8, 8}, 1.0, true, "8+1+3000000+8.00+8.00+1.00.png"},
        {Number(100000), {0.625, 1234.5}, 1.5, false, "0+100000+0.62+1234.50+1.50.png"},
        {Number(100000), {33.335, 8}, 1.115, false, "0+100000+33.34+8.00+1.11.png"},  // as doubles
        {Number(1.5), {8, 8}, 12.25, false, "0+1.5+8.00+8.00+12.25.png"},
        {Number(-10), {8, 8}, 1.0, false, "0+-10+8.00+8.00+1.00.png"},
    };
    for (const auto& each : cases) {
        QKWeatherSymbols::clearCache();
        setScreenScale(each.screenScale);
        symbols.setIgnoreCelestrial(each.ignoreCelestrial);
        EXPECT_FALSE(symbols.symbolForCode(each.code, each.size).isNull()) << each.key;
        EXPECT_EQ(QKWeatherSymbols::symbolCache().keys(),
                  QStringList{QString::fromLatin1(each.key)});
    }
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
