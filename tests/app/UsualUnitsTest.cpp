#include <gtest/gtest.h>

#include "app/UsualUnits.h"
#include "foundation/UserLocale.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

TEST(UsualUnits, AreThoseOfWeatherReportsInTheUsersCountry) {
    testing::forEachLine("app/usual_units.tsv", [](const testing::DataLine& line) {
        const ReplacedUserLocale user(line.utf8(0).constData());
        EXPECT_EQ(countryOfUser(), line[1]);
        QStringList codes;
        for (const UnitCode code : usualUnits(countryOfUser()))
            codes << QString::number(code);
        EXPECT_EQ(codes.join(QLatin1Char(' ')), line[2]);
    });
    for (const char* none : {"", " ", "S A", "us", "USA"})
        EXPECT_EQ(usualUnits(QLatin1String(none)), usualUnits(QStringLiteral("DE"))) << none;
}

}  // namespace
}  // namespace zephyrix
