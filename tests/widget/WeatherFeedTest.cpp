#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "foundation/Clock.h"
#include "foundation/MainQueue.h"
#include "support/LoopbackServer.h"
#include "widget/WeatherFeed.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const QByteArray document = R"({"obs": {"lastObs": {"date": 1433152000, "symbol": 1000000}}})";

class WeatherFeedTest : public ::testing::Test {
  protected:
    struct Result {
        std::optional<WeatherData> document;
        std::optional<FeedError> error;
        std::thread::id thread;
    };

    [[nodiscard]] WeatherFeed::Completion keepResult() {
        return [this](std::optional<WeatherData> weather, std::optional<FeedError> error) {
            results_.push_back({std::move(weather), std::move(error), std::this_thread::get_id()});
        };
    }

    Result fetch(const Number& place = Number(12345)) {
        results_.clear();
        feed_->fetch(place, keepResult());
        EXPECT_TRUE(results_.empty()) << "called before fetch() returned";
        EXPECT_TRUE(waitUntil([this] { return !results_.empty(); }));
        return results_.front();
    }

    LoopbackServer server_{answerBody(document)};
    QString base_ = server_.baseAddress();
    OperationQueue queue_;
    std::vector<Result> results_;
    std::unique_ptr<WeatherFeed> feed_ = std::make_unique<WeatherFeed>(
        [this](const auto& then) { then(base_); }, queue_, FeedLimits());
};

TEST_F(WeatherFeedTest, AsksForThePlaceAndAnswersOnTheMainThread) {
    const Result result = fetch();
    EXPECT_FALSE(result.error);
    ASSERT_TRUE(result.document);
    EXPECT_EQ(result.document->uid, Number(12345));
    EXPECT_EQ(result.thread, std::this_thread::get_id());
    EXPECT_EQ(server_.requestLines().first(),
              "GET /zephyrix/WeatherFeed.php?lid=12345&json=1&widget=1 HTTP/1.1");
}

TEST_F(WeatherFeedTest, InvalidAddressGivesNoDocumentAndNoRequest) {
    for (const char* base : {"", "file:///etc/", "ftp://127.0.0.1/", "http://[/"}) {
        base_ = QLatin1String(base);
        const Result result = fetch();
        EXPECT_FALSE(result.document) << base;
        ASSERT_TRUE(result.error) << base;
        EXPECT_EQ(result.error->domain, FeedError::ownDomain);
        EXPECT_EQ(result.error->code, -1);
    }
    EXPECT_TRUE(server_.requestLines().isEmpty());
}

TEST_F(WeatherFeedTest, EndedWhileTheAnswerIsReadItStaysSilent) {
    std::atomic<bool> reading = false;
    std::promise<void> ended;
    const ReplacedClock clock([&, end = ended.get_future().share()] {
        reading = true;  // an answer with an observation asks for the time
        end.wait();
        return Instant();
    });
    feed_->fetch(Number(1), keepResult());
    ASSERT_TRUE(waitUntil([&] { return reading.load(); }));
    feed_.reset();
    ended.set_value();
    bool delivered = false;
    queue_.addOperation([&] { MainQueue::dispatch([&] { delivered = true; }); });
    EXPECT_TRUE(waitUntil([&] { return delivered; }));
    EXPECT_TRUE(results_.empty());
}

}  // namespace
}  // namespace zephyrix
