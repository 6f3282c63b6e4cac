#include <array>
#include <cmath>

#include <QStringList>

#include "MeteoMapping.h"
#include "foundation/Localized.h"

namespace zephyrix {

namespace {

constexpr std::int64_t variableDirection = 990;  // the feed's mark of a wind that turns
constexpr std::int64_t sectorCount = 16;
constexpr double sectorWidth = 22.5;  // degrees

/// The sectors clockwise, and north once more for those who round without a wrap.
constexpr std::array<QStringView, sectorCount + 1> sectorNames{
    u"N",   u"NNE", u"NE",  u"ENE", u"E",   u"ESE", u"SE",  u"SSE", u"S",
    u"SSW", u"SW",  u"WSW", u"W",   u"WNW", u"NW",  u"NNW", u"N"};

struct UvClass {
    std::int64_t highest;
    QStringView word;
};

constexpr std::array uvClasses{
    UvClass{2, u"Low"},       UvClass{5, u"Medium"},   UvClass{7, u"High"},
    UvClass{9, u"Very high"}, UvClass{15, u"Extreme"},
};

const QStringList& localizedSectorNames() {
    static const QStringList names = [] {
        QStringList list;
        for (const QStringView name : sectorNames)
            list.append(localized(name));
        return list;
    }();
    return names;
}

}  // namespace

std::int64_t MeteoMapping::mapWindToSector(std::int64_t direction, std::int64_t speed) {
    if (direction == variableDirection)
        return variableSector;
    if (speed == 0)
        return calmSector;
    const std::int64_t sector = std::llround(static_cast<double>(direction) / sectorWidth);
    return sector < sectorCount ? sector : sector % sectorCount;
}

QString MeteoMapping::windStringForSector(std::int64_t sector) {
    if (sector == variableSector)
        return localized(u"Rot.");
    if (sector < 0 || sector > sectorCount)
        return localized(u"-");
    return localizedSectorNames()[sector];
}

QString MeteoMapping::stringForUVIndex(const std::optional<Number>& index) {
    const std::int64_t value = index ? index->integerValue() : 0;
    if (value >= 0) {
        for (const UvClass& uvClass : uvClasses) {
            if (value <= uvClass.highest)
                return localized(uvClass.word);
        }
    }
    return QStringLiteral("-");
}

}  // namespace zephyrix
