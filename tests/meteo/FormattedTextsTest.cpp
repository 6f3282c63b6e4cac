#include <gtest/gtest.h>

#include "foundation/UserLocale.h"
#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// Each test sees formatters of its own, in English.
class FormattedTexts : public ::testing::Test {
  protected:
    FormattedTexts() { MeteoMapping::finalizeStatements(); }
    ~FormattedTexts() override { MeteoMapping::finalizeStatements(); }

  private:
    ReplacedUserLocale locale_{"en_US"};
};

QString formatted(const QString& operation, const Number& number, UnitCode unit) {
    if (operation == QLatin1String("temperature"))
        return MeteoMapping::formattedTempString(number, unit);
    if (operation == QLatin1String("wind"))
        return MeteoMapping::formattedWindString(number, unit);
    if (operation == QLatin1String("pressure"))
        return MeteoMapping::formattedPressureString(number, unit);
    if (operation == QLatin1String("precipitation"))
        return MeteoMapping::formattedPrecipitationString(number, unit);
    return MeteoMapping::formattedAltitudeString(number, unit, false);
}

// In turn on the shared formatters, so that nothing of one text may stay for the next.
TEST_F(FormattedTexts, AreThoseOfTheTable) {
    forEachLine("meteo/number_texts.txt", [](const DataLine& line) {
        EXPECT_EQ(formatted(line[0], Number(line.number(1)), line.integer(2)), line[3]);
    });
}

TEST_F(FormattedTexts, KnowAbsentNumbersAndHiddenUnits) {
    EXPECT_EQ(MeteoMapping::formattedTempString(Number(-9999), 0), QStringLiteral("-"));
    EXPECT_EQ(MeteoMapping::formattedTempString(std::nullopt, 1), QStringLiteral("32°F"));
    EXPECT_EQ(MeteoMapping::formattedWindString(std::nullopt, 2), QStringLiteral("0 km/h"));
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(990), 0, true), QStringLiteral("990"));
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(990), 0), QStringLiteral("990hPa"))
        << "the unit comes back";
    EXPECT_EQ(MeteoMapping::formattedPrecipitationString(Number(0.05), 0, true),
              QStringLiteral("<0.1"));
    EXPECT_EQ(MeteoMapping::formattedPrecipitationString(Number(0.5), 0, true),
              QStringLiteral("0.5"))
        << "the mark of a trace does not stay";
}

TEST_F(FormattedTexts, MinutesAreSinglePrecision) {
    EXPECT_EQ(MeteoMapping::formattedAltitudeString(Number(100), 1, true), QStringLiteral("328"));

    const QString unit = QStringLiteral("min");
    EXPECT_EQ(MeteoMapping::formattedMinString(Number(10), unit), QStringLiteral("10min"));
    EXPECT_EQ(MeteoMapping::formattedMinString(Number(2.4999999999), unit), QStringLiteral("2min"))
        << "2.5 in single precision, and a half goes to even";
    EXPECT_EQ(MeteoMapping::formattedMinString(Number(3.4999999999), unit), QStringLiteral("4min"))
        << "3.5 in single precision";
    EXPECT_EQ(MeteoMapping::formattedMinString(Number(1.7e308), {}), QStringLiteral("inf"));
}

TEST_F(FormattedTexts, HoursKeepTheUnitOfTheFirstCall) {
    const QString h = QStringLiteral("h");
    const QString min = QStringLiteral("min");
    EXPECT_EQ(MeteoMapping::formattedHoursString(Number(12), h), QStringLiteral("12h"));
    EXPECT_EQ(MeteoMapping::formattedHoursString(Number(0.25), min), QStringLiteral("0.2h"));
    EXPECT_EQ(MeteoMapping::formattedHoursString(std::nullopt, min), QStringLiteral("0h"));
    EXPECT_EQ(MeteoMapping::formattedHoursString(Number(-9999), h), QStringLiteral("-9999"));
    MeteoMapping::finalizeStatements();
    EXPECT_EQ(MeteoMapping::formattedHoursString(Number(1.0), min), QStringLiteral("1min"));
}

TEST_F(FormattedTexts, OnlyTheNumberFormatterFollowsTheLocale) {
    ASSERT_EQ(MeteoMapping::formattedPressureString(Number(990.5), 0), QStringLiteral("990.5hPa"));
    const ReplacedUserLocale german("de_DE");
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(990.5), 0), QStringLiteral("990.5hPa"))
        << "a formatter keeps the locale of its first use";
    MeteoMapping::finalizeStatements();
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(1990.5), 0),
              QStringLiteral("1990,5hPa"));
    EXPECT_EQ(MeteoMapping::formattedPrecipitationString(Number(0.05), 0),
              QStringLiteral("<0,1mm"));
    EXPECT_EQ(MeteoMapping::formattedHoursString(Number(0.5), QStringLiteral("h")),
              QStringLiteral("0,5h"));
}

TEST_F(FormattedTexts, PlainNumbersHaveTheSameDigitsEverywhere) {
    const ReplacedUserLocale arabic("ar_EG");
    EXPECT_EQ(MeteoMapping::formattedTempString(Number(-12345.0), 0), QStringLiteral("-12345°C"));
    EXPECT_EQ(MeteoMapping::formattedWindString(Number(12345.0), 1), QStringLiteral("12345 kn"));
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(990.5), 0, true),
              QStringLiteral("٩٩٠٫٥"));
}

}  // namespace
}  // namespace zephyrix
