#include <limits>

#include <gtest/gtest.h>

#include "foundation/UserLocale.h"
#include "meteo/MeteoMapping.h"

namespace zephyrix {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Each test sees formatters of its own, in English.
class FormattedTexts : public ::testing::Test {
  protected:
    FormattedTexts() { MeteoMapping::finalizeStatements(); }
    ~FormattedTexts() override { MeteoMapping::finalizeStatements(); }

  private:
    ReplacedUserLocale locale_{"en_US"};
};

struct TextCase {
    double value;
    UnitCode unit;
    const char* text;
    const char* why;
};

template <std::size_t count, typename Operation>
void expectTexts(const TextCase (&cases)[count], Operation operation) {
    for (const TextCase& c : cases)
        EXPECT_EQ(operation(Number(c.value), c.unit), QString::fromUtf8(c.text))
            << c.value << " in unit " << c.unit << ": " << c.why;
}

TEST_F(FormattedTexts, Temperature) {
    const TextCase cases[] = {
        {21.4999, 0, "21°C", "down"},
        {21.5, 0, "22°C", "a half goes away from zero"},
        {20.5, 0, "21°C", "also beside an even number"},
        {-0.5, 0, "-1°C", "and below zero"},
        {-0.4, 0, "0°C", "no negative zero"},
        {-19.4, 1, "-3°F", "Fahrenheit"},
        {20.0, 2, "-253K", "the exchanged Kelvin sign"},
        {20.0, 3, "20°C", "an unknown unit"},
        {-9999.0, 0, "-", "missing"},
        {-9999.9, 1, "-", "its integer value is missing"},
        {-9998.9, 0, "-9999°C", "not missing"},
        {-10000.0, 0, "-10000°C", "not missing"},
        {notANumber, 0, "0°C", "not-a-number has the integer value 0"},
        {1e300, 0, "9223372036854775807°C", "saturated"},
    };
    expectTexts(cases, MeteoMapping::formattedTempString);
    EXPECT_EQ(MeteoMapping::formattedTempString(Number(-9999), 0), QStringLiteral("-"));
    EXPECT_EQ(MeteoMapping::formattedTempString(std::nullopt, 1), QStringLiteral("32°F"));
}

TEST_F(FormattedTexts, Wind) {
    const TextCase cases[] = {
        {10.0, 2, "19 km/h", "18.52"},
        {10.0, 3, "5 m/s", "5.2"},
        {10.0, 0, "3 Bft", "the class up to 10 knots"},
        {10.0, 4, "12 mph", "11.5"},
        {0.5, 1, "0 kn", "a half goes to even"},
        {1.5, 1, "2 kn", "a half goes to even"},
        {2.5, 5, "2 kn", "an unknown unit"},
        {-0.9, 1, "-1 kn", "its integer value is not negative"},
        {-0.4, 1, "-0 kn", "as printf writes it"},
        {-0.5, 0, "-9999 Bft", "below the scale, yet its integer value is 0"},
        {-1.0, 1, "-", "negative"},
        {-9999.0, 2, "-", "missing"},
    };
    expectTexts(cases, MeteoMapping::formattedWindString);
    EXPECT_EQ(MeteoMapping::formattedWindString(std::nullopt, 2), QStringLiteral("0 km/h"));
}

TEST_F(FormattedTexts, Pressure) {
    const TextCase cases[] = {
        {1013.25, 0, "1013.2hPa", "a half goes to even"},
        {1013.35, 0, "1013.4hPa", "a half goes to even"},
        {1013.0, 0, "1013hPa", "no digit without need"},
        {1013.25, 1, "29.92inHg", "two digits"},
        {1013.25, 2, "760Torr", "760.0000000000002"},
        {1013.24, 0, "1013.2hPa", "one digit again after two"},
        {1013.2, 3, "1013.2hPa", "an unknown unit"},
        {0.0, 0, "0hPa", "zero is a value"},
        {-0.04, 0, "-0", "a negative number has no suffix"},
        {-1.0, 0, "-", "negative"},
        {-9999.0, 1, "-", "missing"},
    };
    expectTexts(cases, [](const Number& number, UnitCode unit) {
        return MeteoMapping::formattedPressureString(number, unit);
    });
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(990), 0, true), QStringLiteral("990"));
    EXPECT_EQ(MeteoMapping::formattedPressureString(Number(990), 0), QStringLiteral("990hPa"))
        << "the unit comes back";
}

TEST_F(FormattedTexts, Precipitation) {
    const TextCase cases[] = {
        {0.0, 0, "0.0mm", "dry"},
        {0.001, 0, "0.0mm", "too little for a trace"},
        {0.0011, 0, "<0.1mm", "a trace"},
        {0.05, 0, "<0.1mm", "a trace"},
        {0.0999, 7, "<0.1mm", "a trace in an unknown unit"},
        {0.1, 0, "0.1mm", "no trace"},
        {0.15, 0, "0.2mm", "a half goes to even, of the text"},
        {0.25, 0, "0.2mm", "a half goes to even"},
        {12.0, 0, "12.0mm", "one digit at least"},
        {25.4, 1, "1.0in", "one digit at least"},
        {0.05, 1, "0.0in", "no trace in inches"},
        {0.3, 1, "0.01in", "two digits at most"},
        {31.75, 1, "1.25in", "two digits at most"},
        {-0.5, 0, "-0.5", "a negative number has no suffix"},
        {-1.0, 0, "-", "negative"},
        {-9999.0, 1, "-", "missing"},
    };
    expectTexts(cases, [](const Number& number, UnitCode unit) {
        return MeteoMapping::formattedPrecipitationString(number, unit);
    });
    EXPECT_EQ(MeteoMapping::formattedPrecipitationString(Number(0.05), 0, true),
              QStringLiteral("<0.1"));
    EXPECT_EQ(MeteoMapping::formattedPrecipitationString(Number(0.5), 0, true),
              QStringLiteral("0.5"))
        << "the mark of a trace does not stay";
}

TEST_F(FormattedTexts, AltitudeAndMinutes) {
    const TextCase cases[] = {
        {34.5, 0, "34 m", "a half goes to even"},
        {35.5, 2, "36 m", "a half goes to even"},
        {100.0, 1, "328 ft", "feet"},
        {-9999.0, 0, "-9999 m", "no missing value"},
        {-0.2, 0, "-0 m", "as printf writes it"},
    };
    expectTexts(cases, [](const Number& number, UnitCode unit) {
        return MeteoMapping::formattedAltitudeString(number, unit, false);
    });
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
