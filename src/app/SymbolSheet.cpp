#include "SymbolSheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include <QPainter>

#include "symbols/QKCompoundSymbol.h"
#include "symbolscheme/SymbolScheme.h"

namespace zephyrix {

namespace {

constexpr int columns = 20;
constexpr int warningCount = 9;
constexpr int moonCode = 2'000'000;

struct Ground {
    QRgb colour;
    QRgb label;
};
constexpr std::array grounds{Ground{0xffeef2f7, 0xff5a6675}, Ground{0xff1b222b, 0xff9aa7b5}};

// A lunation in eight steps: new moon on 2015-06-16 at 14:05 UTC, then first quarter on the 24th,
// full moon on 2015-07-02, last quarter on the 8th, and the days between.
constexpr std::array<double, 8> moonNights{1434463500, 1434801600, 1435143780, 1435492800,
                                           1435803600, 1436097600, 1436387040, 1436702400};

// Digits of 3 x 5 dots, a row three bits, the top row in the highest: a sheet needs no fonts.
constexpr int digitWidth = 3;
constexpr int digitHeight = 5;
constexpr std::array<unsigned, 10> digitDots{
    0b111'101'101'101'111, 0b010'110'010'010'111, 0b111'001'111'100'111, 0b111'001'111'001'111,
    0b101'101'111'001'001, 0b111'100'111'001'111, 0b111'100'111'101'111, 0b111'001'010'010'010,
    0b111'101'111'101'111, 0b111'101'111'001'111};
constexpr int labelDots = 7 * (digitWidth + 1);

struct Entry {
    std::uint32_t code;
    std::optional<Instant> date;
};

std::vector<Entry> entries(std::optional<Instant> date) {
    std::vector<Entry> all;
    if (!date)
        for (const double night : moonNights)
            all.push_back({moonCode, Instant::fromSecondsSince1970(night)});
    for (const std::uint32_t code : everySymbolCode())
        all.push_back({code, date});
    for (int warning = 1; warning <= warningCount; ++warning)
        all.push_back({warningCode(warning), date});
    return all;
}

void drawLabel(QPainter& painter, QPoint corner, int dot, std::uint32_t code, QRgb colour) {
    for (const QChar character : QString::number(code)) {
        const unsigned dots = digitDots.at(std::size_t(character.digitValue()));
        for (int i = 0; i < digitWidth * digitHeight; ++i)
            if ((dots >> (digitWidth * digitHeight - 1 - i) & 1U) != 0)
                painter.fillRect(corner.x() + i % digitWidth * dot,
                                 corner.y() + i / digitWidth * dot, dot, dot, QColor(colour));
        corner.rx() += (digitWidth + 1) * dot;
    }
}

/// The measures of a sheet, in pixels.
struct Grid {
    int symbol;
    int gap;
    int dot;

    explicit Grid(double side)
        : symbol(static_cast<int>(std::round(side))),
          gap(std::max(4, symbol / 8)),
          dot(std::max(1, symbol / labelDots)) {}
    [[nodiscard]] int cellWidth() const { return std::max(symbol, labelDots * dot) + gap; }
    [[nodiscard]] int cellHeight() const { return symbol + digitHeight * dot + 2 * gap; }
    [[nodiscard]] QPoint corner(std::size_t index) const {
        const auto place = static_cast<int>(index);
        return {gap + place % columns * cellWidth(), gap + place / columns * cellHeight()};
    }
};

}  // namespace

QImage symbolSheet(const SymbolSheetOptions& options,
                   const std::function<void(int, int)>& progress) {
    const std::vector<Entry> all = entries(options.date);
    const Grid grid(options.size * options.scale);
    const int width = grid.gap + columns * grid.cellWidth();
    const int height = grid.corner(all.size() + columns - 1).y();
    QImage sheet(width, height * static_cast<int>(grounds.size()), QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < grounds.size(); ++i)
        painter.fillRect(0, static_cast<int>(i) * height, width, height,
                         QColor(grounds.at(i).colour));

    QKCompoundSymbol symbols;
    symbols.setWinscale(options.scale);
    for (std::size_t i = 0; i < all.size(); ++i) {
        QImage symbol = symbols.symbolForCode(Number(static_cast<qlonglong>(all[i].code)),
                                              QSizeF(options.size, options.size), all[i].date);
        symbol.setDevicePixelRatio(1.0);
        QPoint corner = grid.corner(i);
        for (const Ground& ground : grounds) {
            painter.drawImage(corner, symbol);
            drawLabel(painter, corner + QPoint(0, grid.symbol + grid.gap / 2), grid.dot,
                      all[i].code, ground.label);
            corner.ry() += height;
        }
        progress(static_cast<int>(i) + 1, static_cast<int>(all.size()));
    }
    return sheet;
}

}  // namespace zephyrix
