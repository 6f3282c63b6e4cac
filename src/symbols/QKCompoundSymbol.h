#pragma once

#include <cstdint>
#include <optional>

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include "foundation/Instant.h"
#include "foundation/Number.h"
#include "foundation/Screen.h"
#include "symbols/SymbolLayout.h"

namespace zephyrix {

/// Turns a weather symbol code into one picture, stacked from up to four layer images of
/// QKWeatherSymbols: precipitation, sun or moon, cloud, warning.
///
/// A code has seven decimal digits: 1 the body (1 sun, 2 moon), 2 the cloud, 3 to 6 the
/// precipitation image, 6 and 7 a special value that decides on lightning, 7 the warning. Day or
/// night is in the code; the date only chooses the moon's phase.
///
/// One long-lived instance serves all rows. Main thread only: what belongs to one call is kept in
/// fields, and some special values deliberately leave the lightning of the symbol before in force.
///
///     QKCompoundSymbol symbols;
///     symbols.setUseCache(true);
///     const QImage picture = symbols.symbolForCode(Number(1300000), QSizeF(40, 40), date);
class QKCompoundSymbol {
  public:
    /// The picture for a code at a size in points. Null for the size zero, and for a size that no
    /// picture can have. A layer whose image does not exist is left out. The picture has
    /// size x winscale pixels, premultiplied alpha, and winscale as its device pixel ratio.
    [[nodiscard]] QImage symbolForCode(const Number& code, const QSizeF& size,
                                       std::optional<Instant> date);
    /// The same without a date: a moon then has image number 8.
    [[nodiscard]] QImage symbolForCode(const Number& code, const QSizeF& size) {
        return symbolForCode(code, size, std::nullopt);
    }

    /// Sets the fields that say what the code consists of, for the date of the last request.
    void prepareInstanceForSymbolCode(std::uint64_t code);
    void setupLightningForSymbol(std::uint64_t code);
    void setupPrecipitationForSymbol(std::uint64_t code);
    void setupCloudForSymbol(std::uint64_t code);
    void setupCelestrialForSymbol(std::uint64_t code);
    /// Moves the layer rectangles from the full canvas to where the code's case wants them.
    void prepareRectsForSymbolCode(std::uint64_t code);

    /// The layer images, null where the code has none or the symbol set does not hold it. Two of
    /// them set their field once more, by a wider rule than the setup: precForSymbol()
    /// precipitation(), cloudForSymbol() cloud().
    [[nodiscard]] QImage precForSymbol(std::uint64_t code);
    [[nodiscard]] QImage celestialBodyForSymbol(std::uint64_t code) const;
    [[nodiscard]] QImage cloudForSymbol(std::uint64_t code);
    [[nodiscard]] QImage warningForSymbol(std::uint64_t code) const;
    /// Only sets lightning(); there is never an image of its own for a special value.
    QImage specialForSymbol(std::uint64_t code);

    /// Scaled about the origin, then moved so that a full-canvas rectangle is centred again.
    [[nodiscard]] static QRectF scaleAndCenter(const QRectF& rect, double scale,
                                               const QRectF& canvas) {
        return zephyrix::scaleAndCenter(rect, scale, canvas);
    }
    /// Moved so that the centre of a centred rectangle lies at point.x of the canvas's width from
    /// the left and point.y of its height from the top. Rectangles have their y axis upwards.
    [[nodiscard]] static QRectF positionAtCenter(const QRectF& rect, const QPointF& point,
                                                 const QRectF& canvas) {
        return zephyrix::positionAtCenter(rect, point, canvas);
    }

    [[nodiscard]] bool lightning() const noexcept { return lightning_; }  // thunder clouds
    [[nodiscard]] bool precipitation() const noexcept { return precipitation_; }
    [[nodiscard]] std::uint64_t cloud() const noexcept { return cloud_; }  // 0 none, 1...9
    [[nodiscard]] bool celestrial() const noexcept { return celestrial_; }
    [[nodiscard]] bool sun() const noexcept { return sun_; }
    [[nodiscard]] bool moon() const noexcept { return moon_; }
    [[nodiscard]] std::int32_t moonphase() const noexcept { return moonphase_; }  // 1...8
    /// Where the layers go: pixels of the canvas, y upwards.
    [[nodiscard]] const SymbolRects& rects() const noexcept { return rects_; }
    [[nodiscard]] const QRectF& canvas() const noexcept { return canvas_; }

    /// Whether sun and moon are left out.
    [[nodiscard]] bool ignoreCelestrial() const noexcept { return ignoreCelestrial_; }
    void setIgnoreCelestrial(bool ignore) noexcept { ignoreCelestrial_ = ignore; }
    /// Whether finished symbols are looked up and kept in the store's cache.
    [[nodiscard]] bool useCache() const noexcept { return useCache_; }
    void setUseCache(bool use) noexcept { useCache_ = use; }
    /// Pixels a point of the pictures made here; the main screen's when this instance was made.
    [[nodiscard]] double winscale() const noexcept { return winscale_; }
    void setWinscale(double scale) noexcept { winscale_ = scale; }

  private:
    [[nodiscard]] QString cacheKey(const Number& code, const QSizeF& size,
                                   double screenScale) const;
    [[nodiscard]] QImage drawnSymbol(std::uint64_t code, const QSizeF& size);

    // The names of the layer images; empty for none.
    [[nodiscard]] QString precName(std::uint64_t code);
    [[nodiscard]] QString celestialBodyName(std::uint64_t code) const;
    [[nodiscard]] QString cloudName(std::uint64_t code);
    [[nodiscard]] static QString warningName(std::uint64_t code);

    bool lightning_ = false;
    bool precipitation_ = false;
    std::uint64_t cloud_ = 0;
    bool celestrial_ = false;
    bool sun_ = false;
    bool moon_ = false;
    std::int32_t moonphase_ = 0;
    SymbolRects rects_;
    QRectF canvas_;
    std::optional<Instant> date_;
    bool ignoreCelestrial_ = false;
    bool useCache_ = false;
    double winscale_ = Screen::main().scale();
};

}  // namespace zephyrix
