#include "QKCompoundSymbol.h"

#include <array>
#include <span>

#include "astro/MoonCalculations.h"
#include "symbols/QKWeatherSymbols.h"
#include "symbols/SymbolDrawing.h"
#include "symbols/SymbolKey.h"

namespace zephyrix {

namespace {

constexpr std::uint64_t endOfCloudImages = 9;  // cloud images are numbered below this
constexpr std::uint64_t thunderSeries = 3;     // a cloud's thunder image lies so much further on
constexpr std::int32_t moonWithoutDate = 8;

bool hasCelestialBody(std::uint64_t code) {
    return code >= 1'000'000 && code <= 9'000'000;
}

/// The cloud digit; a 9 with anything but zeros below it is deliberately none.
std::uint64_t cloudDigit(std::uint64_t code) {
    const std::uint64_t cloud = code % 1'000'000;
    return cloud >= 100'000 && cloud <= 900'000 ? cloud / 100'000 : 0;
}

struct NamedLayer {
    QString name;  // empty for a layer that the code does not have
    QRectF rect;   // of the canvas, y upwards
};

QImage drawnLayers(const QSize& bitmap, std::span<const NamedLayer> named) {
    std::array<PlacedLayer, 4> ready;
    std::size_t count = 0;
    for (const NamedLayer& layer : named) {
        const QRect rect = pixelRect(layer.rect, bitmap.height());
        if (layer.name.isEmpty() || rect.isEmpty())
            continue;
        QImage image = QKWeatherSymbols::layerForSymbolName(layer.name, rect.size());
        if (!image.isNull())
            ready.at(count++) = {std::move(image), rect.topLeft()};
    }
    return composedLayers(bitmap, std::span(ready).first(count));
}

QImage imageForName(const QString& name) {
    return name.isEmpty() ? QImage() : QKWeatherSymbols::imageForSymbolName(name);
}

}  // namespace

QImage QKCompoundSymbol::symbolForCode(const Number& code, const QSizeF& size,
                                       std::optional<Instant> date) {
    if (size.width() == 0.0 && size.height() == 0.0)
        return {};
    date_ = date;
    // The unsigned value: a negative number wraps, and so has digits, too.
    const auto value = static_cast<std::uint64_t>(code.integerValue());
    prepareInstanceForSymbolCode(value);
    if (!useCache_)
        return drawnSymbol(value, size);

    const QString key = cacheKey(code, size, Screen::main().scale());
    QImage symbol = QKWeatherSymbols::imageFromCacheForKey(key);
    if (!symbol.isNull())
        return symbol;
    symbol = drawnSymbol(value, size);
    QKWeatherSymbols::addObjectToCache(symbol, key);
    return symbol;
}

/// The scale in the key is the screen's, not winscale: deliberately, pictures of one screen share
/// their keys whoever draws them.
QString QKCompoundSymbol::cacheKey(const Number& code, const QSizeF& size,
                                   double screenScale) const {
    QString name;
    if (moon_)
        name = QString::number(moonphase_) + QLatin1Char('+');
    name += ignoreCelestrial_ ? QLatin1String("1+") : QLatin1String("0+");
    return symbolKey(name + code.text(), size, screenScale);
}

QImage QKCompoundSymbol::drawnSymbol(std::uint64_t code, const QSizeF& size) {
    canvas_ = QRectF(0, 0, winscale_ * size.width(), winscale_ * size.height());
    prepareRectsForSymbolCode(code);
    const QSize bitmap = pixelSize(canvas_.size());
    if (bitmap.isEmpty())
        return {};
    const std::array layers{
        NamedLayer{precName(code), rects_.prec},
        NamedLayer{ignoreCelestrial_ ? QString() : celestialBodyName(code), rects_.celestrial},
        NamedLayer{cloudName(code), rects_.cloud},
        // Deliberately the size in points: above scale 1 the warning stays in the lower left.
        NamedLayer{warningName(code), QRectF(QPointF(0, 0), size)},
    };
    QImage symbol = drawnLayers(bitmap, layers);
    symbol.setDevicePixelRatio(winscale_);
    return symbol;
}

void QKCompoundSymbol::prepareInstanceForSymbolCode(std::uint64_t code) {
    setupLightningForSymbol(code);
    setupPrecipitationForSymbol(code);
    setupCloudForSymbol(code);
    setupCelestrialForSymbol(code);
}

/// Where nothing is assigned, the symbol before decides. That is deliberate: rows that follow one
/// another without a word on lightning keep it.
void QKCompoundSymbol::setupLightningForSymbol(std::uint64_t code) {
    const std::uint64_t special = code % 100;
    if (special < 10 || special > 90)
        lightning_ = false;
    else if (special < 20) {
        if (code % 100'000 >= 99'910)
            lightning_ = true;
    } else if (special < 60)
        lightning_ = true;
    else if (special < 90)
        lightning_ = false;
}

void QKCompoundSymbol::setupPrecipitationForSymbol(std::uint64_t code) {
    const std::uint64_t precipitation = code % 100'000;
    precipitation_ = precipitation >= 10'000 && precipitation < 99'990;
}

void QKCompoundSymbol::setupCloudForSymbol(std::uint64_t code) {
    cloud_ = cloudDigit(code);
}

void QKCompoundSymbol::setupCelestrialForSymbol(std::uint64_t code) {
    celestrial_ = hasCelestialBody(code);
    sun_ = celestrial_ && code < 2'000'000;
    moon_ = celestrial_ && !sun_;
    if (moon_)
        moonphase_ = date_ ? MoonCalculations::imageNumberForPhase(
                                 MoonCalculations::currentMoonForDate(*date_))
                           : moonWithoutDate;
}

void QKCompoundSymbol::prepareRectsForSymbolCode(std::uint64_t code) {
    rects_ = {canvas_, canvas_, canvas_};
    if (code % 1'000'000 != 999'999)
        rects_ = symbolRects({.celestrial = celestrial_,
                              .sun = sun_,
                              .precipitation = precipitation_,
                              .cloud = cloud_},
                             canvas_);
}

QString QKCompoundSymbol::precName(std::uint64_t code) {
    const std::uint64_t precipitation = code % 100'000;
    precipitation_ = precipitation >= 10'000;
    if (!precipitation_)
        return {};
    const QString name = QStringLiteral("prec%1").arg(precipitation / 10, 4, 10, QLatin1Char('0'));
    const bool overcast = code % 1'000'000 >= 900'000;
    return overcast && precipitation / 1'000 % 10 < 9 ? QStringLiteral("noshadow_") + name : name;
}

QString QKCompoundSymbol::celestialBodyName(std::uint64_t code) const {
    if (!hasCelestialBody(code) || code >= 3'000'000)
        return {};
    return code < 2'000'000 ? QStringLiteral("sun") : QStringLiteral("moon%1").arg(moonphase_);
}

QString QKCompoundSymbol::cloudName(std::uint64_t code) {
    const std::uint64_t digit = cloudDigit(code);
    if (digit == 0)
        return {};
    cloud_ = digit;
    const std::uint64_t image = digit + (lightning_ ? thunderSeries : 0);
    return image < endOfCloudImages ? QStringLiteral("cloud%1").arg(image) : QString();
}

QString QKCompoundSymbol::warningName(std::uint64_t code) {
    const std::uint64_t warning = code % 10;
    if (warning == 0)
        return {};
    if (warning == 2 && code >= 9'999'990)
        return QStringLiteral("storm");
    return QStringLiteral("warn%1").arg(warning);
}

QImage QKCompoundSymbol::precForSymbol(std::uint64_t code) {
    return imageForName(precName(code));
}

QImage QKCompoundSymbol::celestialBodyForSymbol(std::uint64_t code) const {
    return imageForName(celestialBodyName(code));
}

QImage QKCompoundSymbol::cloudForSymbol(std::uint64_t code) {
    return imageForName(cloudName(code));
}

QImage QKCompoundSymbol::warningForSymbol(std::uint64_t code) const {
    return imageForName(warningName(code));
}

QImage QKCompoundSymbol::specialForSymbol(std::uint64_t code) {
    setupLightningForSymbol(code);
    return {};
}

}  // namespace zephyrix
