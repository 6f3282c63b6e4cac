#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "feed/DocumentKeeper.h"
#include "foundation/TimeZone.h"

namespace zephyrix {
namespace {

const Instant noon = Instant::fromSecondsSince1970(1433152800.0);
const Place berlin{1, 52.53, 13.38, timeZoneWithName(QStringLiteral("Europe/Berlin"))};
const Place tokyo{2, 35.68, 139.69, timeZoneWithName(QStringLiteral("Asia/Tokyo"))};

/// Weather that is new every ten minutes and slow to come, or none.
class SlowSource : public WeatherSource {
  public:
    [[nodiscard]] std::optional<Weather> weatherAt(const Place& /*place*/,
                                                   Instant now) const override {
        ++asked;
        while (isHeld)
            std::this_thread::yield();
        if (!knows)
            return std::nullopt;
        std::optional<Weather> weather(std::in_place);
        weather->source = QStringLiteral("slow");
        weather->observation = Observation{.time = noon, .temperature = Celsius(celsius)};
        weather->validUntil = now.addingSeconds(600.0);
        return weather;
    }

    mutable std::atomic<int> asked = 0;
    std::atomic<bool> isHeld = false;
    std::atomic<bool> knows = true;
    std::atomic<double> celsius = 10.0;
};

TEST(DocumentKeeper, AsksOnceWhileTheWeatherIsValid) {
    SlowSource source;
    const DocumentKeeper keeper(source);
    const auto first = keeper.documentFor(berlin, noon);
    EXPECT_EQ(keeper.documentFor(berlin, noon.addingSeconds(599.0)), first);
    EXPECT_EQ(source.asked, 1);
    EXPECT_NE(keeper.documentFor(tokyo, noon), first);
    // Asked again it says the same: since then, by the same tag, but valid for longer.
    const auto same = keeper.documentFor(berlin, noon.addingSeconds(600.0));
    EXPECT_EQ(same->since, noon);
    EXPECT_EQ(same->tag, first->tag);
    EXPECT_EQ(same->validUntil, noon.addingSeconds(1200.0));
    source.celsius = 11.0;
    const auto other = keeper.documentFor(berlin, noon.addingSeconds(1200.0));
    EXPECT_EQ(other->since, noon.addingSeconds(1200.0));
    EXPECT_NE(other->tag, first->tag);
    source.knows = false;
    EXPECT_EQ(keeper.documentFor(berlin, noon.addingSeconds(1800.0)), nullptr);
}

TEST(DocumentKeeper, SendsOneToTheSourceForAllWhoAskTogether) {
    SlowSource source;
    const DocumentKeeper keeper(source);
    source.isHeld = true;
    std::vector<std::future<std::shared_ptr<const KeptDocument>>> askers;
    for (int i = 0; i < 6; ++i)
        askers.push_back(
            std::async(std::launch::async, [&] { return keeper.documentFor(berlin, noon); }));
    while (source.asked == 0)
        std::this_thread::yield();
    source.isHeld = false;
    for (auto& asker : askers)
        EXPECT_NE(asker.get(), nullptr);
    EXPECT_EQ(source.asked, 1);

    // With a document from before nobody else waits.
    source.isHeld = true;
    const Instant later = noon.addingSeconds(700.0);
    auto first = std::async(std::launch::async, [&] { return keeper.documentFor(berlin, later); });
    while (source.asked == 1)
        std::this_thread::yield();
    EXPECT_EQ(keeper.documentFor(berlin, later)->validUntil, noon.addingSeconds(600.0));
    source.isHeld = false;
    EXPECT_EQ(first.get()->validUntil, later.addingSeconds(600.0));
}

}  // namespace
}  // namespace zephyrix
