#include <optional>

#include "MeteoMapping.h"
#include "Rounding.h"
#include "foundation/NumberFormatter.h"

namespace zephyrix {

namespace {

struct NumberFormatters {
    std::optional<NumberFormatter> hours;
    std::optional<NumberFormatter> pressure;
    std::optional<NumberFormatter> precipitation;
};

NumberFormatters& shared() {
    static NumberFormatters formatters;
    return formatters;
}

NumberFormatter& pressureFormatter() {
    std::optional<NumberFormatter>& formatter = shared().pressure;
    if (!formatter)
        formatter.emplace();
    return *formatter;
}

NumberFormatter& precipitationFormatter() {
    std::optional<NumberFormatter>& formatter = shared().precipitation;
    if (!formatter) {
        formatter.emplace();
        formatter->setMinimumFractionDigits(1);
        formatter->setMinimumIntegerDigits(1);
    }
    return *formatter;
}

NumberFormatter& hoursFormatter(const QString& unitOfFirstCall) {
    std::optional<NumberFormatter>& formatter = shared().hours;
    if (!formatter) {
        formatter.emplace();
        formatter->setMaximumFractionDigits(1);
        formatter->setMinimumIntegerDigits(1);
        formatter->setPaddingCharacter(u' ');
        formatter->setPositiveSuffix(unitOfFirstCall);
    }
    return *formatter;
}

std::int64_t integerValue(const std::optional<Number>& number) {
    return number ? number->integerValue() : 0;
}

double doubleValue(const std::optional<Number>& number) {
    return number ? number->doubleValue() : 0.0;
}

QString noValue() {
    return QStringLiteral("-");
}

}  // namespace

QString MeteoMapping::formattedTempString(const std::optional<Number>& celsius, UnitCode unitOut) {
    if (integerValue(celsius) == -9999)
        return noValue();
    return wholeDegrees(mapTemperature(doubleValue(celsius), unitcode::celsius, unitOut)) +
           tempUnitForUnit(unitOut);
}

QString MeteoMapping::formattedWindString(const std::optional<Number>& knots, UnitCode unitOut) {
    if (integerValue(knots) < 0)
        return noValue();
    return wholeNumber(mapKnotsToUnit(unitOut, doubleValue(knots))) + u' ' +
           windUnitForUnit(unitOut);
}

QString MeteoMapping::formattedPressureString(const std::optional<Number>& hPa, UnitCode unitOut,
                                              bool hideUnit) {
    if (integerValue(hPa) < 0)
        return noValue();
    NumberFormatter& formatter = pressureFormatter();
    formatter.setMaximumFractionDigits(unitOut == unitcode::inchesOfMercury ? 2 : 1);
    formatter.setPositiveSuffix(hideUnit ? QString() : pressureUnitForUnit(unitOut));
    return decimalNumber(mapHpaToUnit(unitOut, doubleValue(hPa)), formatter);
}

QString MeteoMapping::formattedPrecipitationString(const std::optional<Number>& mm,
                                                   UnitCode unitOut, bool hideUnit) {
    if (integerValue(mm) < 0)
        return noValue();
    const bool inInches = unitOut == unitcode::inches;
    double amount = doubleValue(mm);
    const bool isTrace = !inInches && amount > 0.001 && amount < 0.1;
    if (isTrace)
        amount = 0.1;
    NumberFormatter& formatter = precipitationFormatter();
    formatter.setMaximumFractionDigits(inInches ? 2 : 1);
    formatter.setPositiveSuffix(hideUnit ? QString() : precipitationUnitForUnit(unitOut));
    formatter.setPositivePrefix(isTrace ? QStringLiteral("<") : QString());
    return decimalNumber(mapMMToUnit(unitOut, amount), formatter);
}

QString MeteoMapping::formattedAltitudeString(const std::optional<Number>& metres, UnitCode unitOut,
                                              bool hideUnit) {
    const QString number = wholeNumber(mapMetersToUnit(unitOut, doubleValue(metres)));
    return hideUnit ? number : number + u' ' + altitudeUnitForUnit(unitOut);
}

QString MeteoMapping::formattedHoursString(const std::optional<Number>& hours,
                                           const QString& unit) {
    return decimalNumber(doubleValue(hours), hoursFormatter(unit));
}

QString MeteoMapping::formattedMinString(const std::optional<Number>& minutes,
                                         const QString& unit) {
    const float value = minutes ? minutes->floatValue() : 0.0F;
    return wholeNumber(static_cast<double>(value)) + unit;
}

void MeteoMapping::dropNumberFormatters() {
    shared() = {};
}

void MeteoMapping::finalizeStatements() {
    dropNumberFormatters();
    dropTextLookup();
}

}  // namespace zephyrix
