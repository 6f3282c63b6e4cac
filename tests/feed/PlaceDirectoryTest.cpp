#include <array>
#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "feed/PlaceDirectory.h"
#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "places/CoordinateUid.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

class PlaceDirectoryTest : public ::testing::Test {
  protected:
    PlaceDirectoryTest() { qputenv("XDG_CONFIG_HOME", testing::freshFolder().toUtf8()); }
};

TEST_F(PlaceDirectoryTest, TheFirstThatKnowsAnIdTells) {
    struct Case {
        std::int64_t id;
        Coordinate where;
        const char* zone;
        const char* why;
    };
    const std::array cases{
        Case{18228265, {52.53, 13.38}, "Europe/Berlin", "the default place"},
        Case{3133895, {69.65, 18.96}, "Europe/Oslo", "a place of the list"},
        Case{uidOfCoordinate({-20.88, 55.45}), {-20.88, 55.45}, "Indian/Reunion", "coordinates"},
        Case{uidOfCoordinate({0.0, -140.0}), {0.0, -140.0}, "Etc/GMT+9", "on the high seas"},
    };
    const PlaceDirectory places(std::nullopt, PlaceDirectory::Unknown::Refused);
    for (const Case& aCase : cases) {
        const Place place = places.placeOf(aCase.id).value();
        EXPECT_EQ(place.id, aCase.id) << aCase.why;
        EXPECT_NEAR(place.latitude, aCase.where.latitude, 0.005) << aCase.why;
        EXPECT_NEAR(place.longitude, aCase.where.longitude, 0.005) << aCase.why;
        EXPECT_EQ(place.zone.id(), aCase.zone) << aCase.why;
    }
    EXPECT_FALSE(places.placeOf(7));
    EXPECT_TRUE(PlaceDirectory(std::nullopt, PlaceDirectory::Unknown::Invented).placeOf(7));
}

TEST_F(PlaceDirectoryTest, ThePlaceThatWasChosenGoesBeforeTheListAndTheFirstOptionBeforeAll) {
    LocationResult chosen = LocationResult::defaultSearchResult();
    chosen.setUid(Number(3133895));
    const auto settings = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    settings->set(QStringLiteral("location"), chosen.asDict());
    ASSERT_TRUE(settings->synchronize());
    const auto latitude = [](std::optional<Place> everyPlace) {
        return PlaceDirectory(std::move(everyPlace), PlaceDirectory::Unknown::Refused)
            .placeOf(3133895)
            .value()
            .latitude;
    };
    EXPECT_NEAR(latitude(std::nullopt), 52.53, 0.01);
    EXPECT_EQ(latitude(Place{1, 12.0, 34.0, QTimeZone("Asia/Tokyo")}), 12.0);
}

TEST_F(PlaceDirectoryTest, AnotherChoiceCountsFromTheNextQuestionOn) {
    const PlaceDirectory places(std::nullopt, PlaceDirectory::Unknown::Refused);
    EXPECT_NEAR(places.placeOf(3133895)->latitude, 69.65, 0.01) << "no settings yet";
    const auto settings = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    // At once after each other, and always as many bytes.
    for (int degrees = 10; degrees < 90; ++degrees) {
        LocationResult chosen = LocationResult::defaultSearchResult();
        chosen.setUid(Number(3133895));
        chosen.setLatitude(Number(degrees));
        settings->set(QStringLiteral("location"), chosen.asDict());
        ASSERT_TRUE(settings->synchronize());
        EXPECT_EQ(places.placeOf(3133895)->latitude, degrees);
        EXPECT_EQ(places.placeOf(3133895)->latitude, degrees) << "without reading";
    }
    settings->remove(QStringLiteral("location"));
    ASSERT_TRUE(settings->synchronize());
    EXPECT_NEAR(places.placeOf(3133895)->latitude, 69.65, 0.01) << "chosen no more";
}

TEST_F(PlaceDirectoryTest, MayBeAskedByManyThreads) {
    const PlaceDirectory places(std::nullopt, PlaceDirectory::Unknown::Refused);
    std::array<std::thread, 4> threads;
    std::atomic<int> right = 0;
    for (std::thread& thread : threads)
        thread = std::thread([&] {
            for (int i = 0; i < 50; ++i)
                right += places.placeOf(3133895)->zone.id() == "Europe/Oslo" ? 1 : 0;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(right, 200);
}

}  // namespace
}  // namespace zephyrix
