#include <array>
#include <cmath>

#include <gtest/gtest.h>

#include "model/LocationResult.h"
#include "places/CoordinateUid.h"

namespace zephyrix {
namespace {

TEST(CoordinateUid, GivesTheCoordinatesBackFromEveryEdgeOfTheEarth) {
    double worst = 0.0;
    for (const double latitude : {-90.0, -33.87321, -0.00004, 0.0, 0.00004, 69.64893, 90.0})
        for (const double longitude : {-180.0, -70.12345, 0.0, 0.00006, 18.95508, 180.0}) {
            const auto back = coordinateOfUid(uidOfCoordinate({latitude, longitude}));
            ASSERT_TRUE(back.has_value()) << latitude << ' ' << longitude;
            worst = std::max({worst, std::fabs(back->latitude - latitude),
                              std::fabs(back->longitude - longitude)});
        }
    std::cout << "worst error " << worst << " degrees\n";
    EXPECT_LE(worst, 0.00005 + 1e-9);
}

TEST(CoordinateUid, IsAUidThatAStoreAndAFeedCanCarry) {
    LocationResult place;
    place.setUid(Number(static_cast<qlonglong>(uidOfCoordinate({-90.0, -180.0}))));
    place.setName(QStringLiteral("Pole"));
    place.setLatitude(Number(-90.0));
    EXPECT_TRUE(place.checkValidity());
    const std::int64_t last = uidOfCoordinate({90.0, 180.0});
    EXPECT_EQ(static_cast<std::int64_t>(static_cast<double>(last)), last);  // as a JSON number
}

TEST(CoordinateUid, OtherUidsAreNoCoordinates) {
    const std::int64_t first = uidOfCoordinate({-90.0, -180.0});
    const std::int64_t last = uidOfCoordinate({90.0, 180.0});
    for (const std::int64_t uid : {std::int64_t{-1}, std::int64_t{0}, std::int64_t{18228265},
                                   first - 1, last + 1, first + 3'600'001, std::int64_t{INT64_MAX}})
        EXPECT_FALSE(coordinateOfUid(uid).has_value()) << uid;
}

}  // namespace
}  // namespace zephyrix
