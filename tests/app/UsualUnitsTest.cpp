#include <array>

#include <gtest/gtest.h>

#include "app/UsualUnits.h"
#include "foundation/UserLocale.h"

namespace zephyrix {
namespace {

TEST(UsualUnits, AreThoseOfWeatherReportsInTheUsersCountry) {
    struct Case {
        const char* locale;
        const char* country;
        UnitSet units;
    };
    const std::array cases{
        Case{"en_US", "US", {1, 4, 1, 1}},      Case{"en_GB", "GB", {0, 4, 0, 0}},
        Case{"de_DE", "DE", {0, 2, 0, 0}},      Case{"de_AT", "AT", {0, 2, 0, 0}},
        Case{"nl_NL", "NL", {0, 0, 0, 0}},      Case{"sv_SE", "SE", {0, 3, 0, 0}},
        Case{"ru_RU", "RU", {0, 3, 0, 2}},      Case{"es_PR", "PR", {1, 4, 1, 1}},
        Case{"sr_Latn_RS", "RS", {0, 2, 0, 0}},
    };
    for (const Case& aCase : cases) {
        const ReplacedUserLocale user(aCase.locale);
        EXPECT_EQ(countryOfUser(), QLatin1String(aCase.country)) << aCase.locale;
        EXPECT_EQ(usualUnits(countryOfUser()), aCase.units) << aCase.locale;
    }
    for (const char* none : {"", " ", "S A", "us", "USA"})
        EXPECT_EQ(usualUnits(QLatin1String(none)), usualUnits(QStringLiteral("DE"))) << none;
}

}  // namespace
}  // namespace zephyrix
