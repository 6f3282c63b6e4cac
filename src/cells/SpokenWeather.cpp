#include "SpokenWeather.h"

#include <array>
#include <cmath>
#include <span>

#include <QStringList>

#include "foundation/Localized.h"
#include "meteo/UnitTable.h"

namespace zephyrix {

namespace {

constexpr std::array sectorNames = {
    u"north", u"north-north-east", u"north-east", u"east-north-east",
    u"east",  u"east-south-east",  u"south-east", u"south-south-east",
    u"south", u"south-south-west", u"south-west", u"west-south-west",
    u"west",  u"west-north-west",  u"north-west", u"north-north-west",
};

/// "kilometres per hour", in the form for the number; a code outside of the table means `standard`.
QString spokenUnit(std::span<const Unit> units, UnitCode code, UnitCode standard,
                   const QString& number) {
    const Unit* known = unitWithCode(units, code);
    return localized((known == nullptr ? unitWithCode(units, standard) : known)->spoken, number);
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
    const QString number = QString::number(Number(degrees).integerValue());
    return QStringLiteral("%1 %2").arg(
        number, spokenUnit(temperatureUnits, unit, unitcode::celsius, number));
}

QString directionName(const std::optional<Number>& direction) {
    if (isMissing(direction))
        return {};
    constexpr std::int64_t anySpeed = 1;  // other than calm
    const std::int64_t sector = MeteoMapping::mapWindToSector(direction->integerValue(), anySpeed);
    if (sector == MeteoMapping::variableSector)
        return localized(u"from changing directions");
    if (sector < 0 || sector >= static_cast<std::int64_t>(sectorNames.size()))
        return {};
    return localized(sectorNames.at(static_cast<std::size_t>(sector)));
}

QString spokenWind(const Obs& record, UnitCode unit) {
    if (isMissing(record.ff))
        return {};
    if (record.ff->integerValue() == 0)
        return localized(u"no wind");
    const double speed = std::round(MeteoMapping::mapKnotsToUnit(unit, record.ff->doubleValue()));
    const QString number = QString::number(Number(speed).integerValue());
    return localized(u"wind %1 %2 %3")
        .arg(directionName(record.dd), number, spokenUnit(windUnits, unit, unitcode::knots, number))
        .simplified();
}

QString spokenPeriod(std::int64_t hours) {
    const QString number = QString::number(hours);
    return hours == 1 ? localized(u"in the last hour")
                      : localized(u"in the last %1 hours", number).arg(number);
}

QString spokenPrecipitation(const Obs& record, UnitCode unit) {
    if (!record.rrr || record.rrr->integerValue() < 0)
        return {};
    const QString number = MeteoMapping::formattedPrecipitationString(record.rrr, unit, true);
    QString amount =
        localized(u"precipitation %1 %2")
            .arg(number, spokenUnit(precipitationUnits, unit, unitcode::millimetres, number));
    const std::int64_t hours = isMissing(record.rrrh) ? 0 : record.rrrh->integerValue();
    return hours <= 0 ? amount : amount + QLatin1Char(' ') + spokenPeriod(hours);
}

QString spokenPressure(const Obs& record, UnitCode unit) {
    if (!record.ppp || record.ppp->integerValue() < 0)
        return {};
    const QString number = MeteoMapping::formattedPressureString(record.ppp, unit, true);
    return localized(u"pressure %1 %2")
        .arg(number, spokenUnit(pressureUnits, unit, unitcode::hectopascal, number));
}

QString sentence(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

}  // namespace

QString spokenObservation(const Obs& record, const ShownObservation& shown,
                          const ChosenUnits& units) {
    const QString time =
        shown.time.isEmpty() ? QString() : localized(u"observed at %1").arg(shown.time);
    return sentence({shown.place, spokenTemperature(record.tt, units.temperature), shown.weather,
                     spokenWind(record, units.wind),
                     spokenPrecipitation(record, units.precipitation),
                     spokenPressure(record, units.pressure), time});
}

QString spokenDay(const QString& day, const std::optional<Number>& tx,
                  const std::optional<Number>& tn, UnitCode unit) {
    const QString high = spokenTemperature(tx, unit);
    const QString low = spokenTemperature(tn, unit);
    return sentence({day, high.isEmpty() ? QString() : localized(u"high %1").arg(high),
                     low.isEmpty() ? QString() : localized(u"low %1").arg(low)});
}

}  // namespace zephyrix
