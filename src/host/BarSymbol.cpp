#include "BarSymbol.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zephyrix {

namespace {

constexpr QStringView thunder = u"\u26C8";
constexpr QStringView lightning = u"\U0001F329";

struct Precipitation {
    std::int64_t least;  // D3 to D6: from here to the next line
    QStringView glyph;
    QStringView kind;
};

constexpr std::array precipitations{
    Precipitation{1000, u"\U0001F327", u"drizzle"},
    Precipitation{2000, u"\U0001F327", u"rain"},
    Precipitation{3000, u"\U0001F328", u"sleet"},
    Precipitation{4000, u"\U0001F328", u"snow"},
    Precipitation{5000, u"\U0001F328", u"ice"},
    Precipitation{6000, u"\U0001F328", u"hail"},
    Precipitation{7000, u"\U0001F32B", u"fog"},
    Precipitation{8000, u"\U0001F32B", u"dust"},
    Precipitation{9000, lightning, u"thunderstorm"},
    Precipitation{9300, u"\U0001F32C", u"wind"},
    Precipitation{9600, u"\U0001F32A", u"tornado"},
    Precipitation{9990, lightning, u"thunderstorm"},
    Precipitation{9999, u"\u26A0", u"warning"},
};

// Without precipitation, by the cloud digit: none, small, large, two.
constexpr std::array<QStringView, 4> besideSun{u"\u2600", u"\U0001F324", u"\u26C5", u"\U0001F325"};
constexpr QStringView moon = u"\U0001F319";
constexpr QStringView cloudAlone = u"\u2601";
constexpr QStringView sunAndRain = u"\U0001F326";

QStringView skyGlyph(std::int64_t body, std::int64_t cloud) {
    const auto size = cloud == 0 || cloud == 9 ? 0U : static_cast<std::size_t>((cloud - 1) % 3 + 1);
    if (body == 0)
        return size == 0 ? QStringView() : cloudAlone;
    if (body == 1)
        return besideSun.at(size);
    return size < 2 ? moon : cloudAlone;  // there is no sign of a moon with a cloud
}

BarSymbol fallingOf(std::int64_t number, bool isDay) {
    const auto* const next = std::ranges::find_if(
        precipitations, [&](const Precipitation& row) { return row.least > number; });
    const Precipitation& row = *std::prev(next);
    const std::int64_t lightningDigit = number % 10;
    const bool thunders = lightningDigit >= 2 && lightningDigit <= 5 && number < 9990;
    if (thunders)
        return {thunder.toString(), QStringLiteral("thunderstorm")};
    const bool showers = number / 100 == 21;
    return {(showers && isDay ? sunAndRain : row.glyph).toString(), row.kind.toString()};
}

}  // namespace

BarSymbol barSymbol(const Number& code) {
    constexpr std::int64_t most = 9999999;
    const std::int64_t digits = code.integerValue();
    if (digits <= 0 || digits > most)
        return {{}, QStringLiteral("none")};
    const std::int64_t body = digits / 1000000;
    const std::int64_t cloud = digits / 100000 % 10;
    const std::int64_t number = digits / 10 % 10000;
    BarSymbol symbol;
    if (number >= precipitations.front().least) {
        symbol = fallingOf(number, body == 1);
    } else {
        symbol.glyph = skyGlyph(body, cloud).toString();
        symbol.kind = symbol.glyph.isEmpty() ? QStringLiteral("none")
                      : cloud == 0           ? QStringLiteral("clear")
                                             : QStringLiteral("clouds");
    }
    symbol.isNight = body == 2;
    return symbol;
}

}  // namespace zephyrix
