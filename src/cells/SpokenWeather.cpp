#include "SpokenWeather.h"

#include <array>
#include <cmath>

#include <QStringList>

#include "foundation/Bundle.h"

namespace zephyrix {

namespace {

constexpr std::array sectorNames = {
    "north", "north-north-east", "north-east", "east-north-east",
    "east",  "east-south-east",  "south-east", "south-south-east",
    "south", "south-south-west", "south-west", "west-south-west",
    "west",  "west-north-west",  "north-west", "north-north-west",
};

// By unit code; the last one is for every other code.
constexpr std::array windUnits = {"Beaufort",          "knots",          "kilometres per hour",
                                  "metres per second", "miles per hour", "knots"};
constexpr std::array precipitationUnits = {"millimetres", "inches", "millimetres"};
constexpr std::array pressureUnits = {"hectopascals", "inches of mercury", "Torr", "hectopascals"};

template <std::size_t size>
QString unitName(const std::array<const char*, size>& names, UnitCode code) {
    const auto index =
        code < 0 || code >= static_cast<UnitCode>(size) ? size - 1 : static_cast<std::size_t>(code);
    return Bundle::main().localizedString(QString::fromLatin1(names.at(index)));
}

QString localized(const char* key) {
    return Bundle::main().localizedString(QString::fromLatin1(key));
}

bool isMissing(const std::optional<Number>& number) {
    return !number || number->integerValue() <= -9999;
}

// Empty for a missing one, as are all texts below.
QString spokenTemperature(const std::optional<Number>& celsius, UnitCode unit) {
    if (isMissing(celsius))
        return {};
    const double degrees =
        std::round(MeteoMapping::mapTemperature(celsius->doubleValue(), 0, unit));
    return QStringLiteral("%1 %2").arg(QString::number(Number(degrees).integerValue()),
                                       MeteoMapping::accessibleTempUnitForUnit(unit));
}

QString directionName(const std::optional<Number>& direction) {
    if (isMissing(direction))
        return {};
    constexpr std::int64_t anySpeed = 1;  // other than calm
    const std::int64_t sector = MeteoMapping::mapWindToSector(direction->integerValue(), anySpeed);
    if (sector == MeteoMapping::variableSector)
        return localized("from changing directions");
    if (sector < 0 || sector >= static_cast<std::int64_t>(sectorNames.size()))
        return {};
    return localized(sectorNames.at(static_cast<std::size_t>(sector)));
}

QString spokenWind(const Obs& record, UnitCode unit) {
    if (isMissing(record.ff))
        return {};
    if (record.ff->integerValue() == 0)
        return localized("no wind");
    const double speed = std::round(MeteoMapping::mapKnotsToUnit(unit, record.ff->doubleValue()));
    return localized("wind %1 %2 %3")
        .arg(directionName(record.dd), QString::number(Number(speed).integerValue()),
             unitName(windUnits, unit))
        .simplified();
}

QString spokenPrecipitation(const Obs& record, UnitCode unit) {
    if (!record.rrr || record.rrr->integerValue() < 0)
        return {};
    QString amount = localized("precipitation %1 %2")
                         .arg(MeteoMapping::formattedPrecipitationString(record.rrr, unit, true),
                              unitName(precipitationUnits, unit));
    const std::int64_t hours = isMissing(record.rrrh) ? 0 : record.rrrh->integerValue();
    if (hours <= 0)
        return amount;
    const QString period =
        hours == 1 ? localized("in the last hour") : localized("in the last %1 hours").arg(hours);
    return amount + QLatin1Char(' ') + period;
}

QString spokenPressure(const Obs& record, UnitCode unit) {
    if (!record.ppp || record.ppp->integerValue() < 0)
        return {};
    return localized("pressure %1 %2")
        .arg(MeteoMapping::formattedPressureString(record.ppp, unit, true),
             unitName(pressureUnits, unit));
}

QString sentence(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

}  // namespace

QString spokenObservation(const Obs& record, const ShownObservation& shown,
                          const ChosenUnits& units) {
    const QString time =
        shown.time.isEmpty() ? QString() : localized("observed at %1").arg(shown.time);
    return sentence({shown.place, spokenTemperature(record.tt, units.temperature), shown.weather,
                     spokenWind(record, units.wind),
                     spokenPrecipitation(record, units.precipitation),
                     spokenPressure(record, units.pressure), time});
}

QString spokenDay(const QString& day, const std::optional<Number>& tx,
                  const std::optional<Number>& tn, UnitCode unit) {
    const QString high = spokenTemperature(tx, unit);
    const QString low = spokenTemperature(tn, unit);
    return sentence({day, high.isEmpty() ? QString() : localized("high %1").arg(high),
                     low.isEmpty() ? QString() : localized("low %1").arg(low)});
}

}  // namespace zephyrix
