#include "UsualUnits.h"

#include <algorithm>

#include <QLocale>
#include <QStringView>

#include "foundation/UserLocale.h"

namespace zephyrix {

namespace {

struct CountryUnits {
    QStringView countries;
    UnitSet units;
};

constexpr UnitSet metric{unitcode::celsius, unitcode::kilometresPerHour, unitcode::millimetres,
                         unitcode::hectopascal};

constexpr std::array countryTable{
    CountryUnits{u"US AS BS BZ FM GU KY LR MH MP PR PW UM VI",
                 {unitcode::fahrenheit, unitcode::milesPerHour, unitcode::inches,
                  unitcode::inchesOfMercury}},
    CountryUnits{
        u"GB GG IM JE",
        {unitcode::celsius, unitcode::milesPerHour, unitcode::millimetres, unitcode::hectopascal}},
    CountryUnits{u"CN DK EE FI FO GL IS JP KR NO SE",
                 {unitcode::celsius, unitcode::metresPerSecond, unitcode::millimetres,
                  unitcode::hectopascal}},
    CountryUnits{
        u"BE NL",
        {unitcode::celsius, unitcode::beaufort, unitcode::millimetres, unitcode::hectopascal}},
    CountryUnits{
        u"AM AZ BY KG KZ RU TJ TM UA UZ",
        {unitcode::celsius, unitcode::metresPerSecond, unitcode::millimetres, unitcode::torr}},
};

}  // namespace

UnitSet usualUnits(const QString& country) {
    const auto* const row = std::ranges::find_if(countryTable, [&](const CountryUnits& each) {
        return country.size() == 2 && each.countries.toString().split(u' ').contains(country);
    });
    return row == countryTable.end() ? metric : row->units;
}

QString countryOfUser() {
    const QLocale locale(QString::fromLatin1(UserLocale::forNumbers()));
    return locale.territory() == QLocale::AnyTerritory
               ? QString()
               : QLocale::territoryToCode(locale.territory());
}

}  // namespace zephyrix
