#include <chrono>
#include <vector>

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "network/FeedRequest.h"
#include "support/LoopbackServer.h"

namespace zephyrix {
namespace {

using namespace std::chrono_literals;
using namespace zephyrix::testing;

constexpr qint64 mebibyte = 1024 * 1024;

class FeedRequestTest : public ::testing::Test {
  protected:
    struct Result {
        QByteArray body;
        std::optional<FeedError> error;
    };

    FeedRequest* start() {
        return new FeedRequest(
            network_, QUrl(server_.baseAddress() + QStringLiteral("zephyrix/feed?lid=5")), limits_,
            [this](const QByteArray& body, std::optional<FeedError> error) {
                results_.push_back({body, std::move(error)});
            },
            &requests_);
    }

    Result fetch() {
        results_.clear();
        const QPointer<FeedRequest> request = start();
        EXPECT_TRUE(results_.empty()) << "called before the event loop runs";
        EXPECT_TRUE(waitUntil([&] { return request.isNull(); }));
        EXPECT_EQ(results_.size(), 1U);
        return results_.empty() ? Result() : results_.front();
    }

    void expectTransportError(const char* why) {
        const Result result = fetch();
        ASSERT_TRUE(result.error) << why;
        EXPECT_EQ(result.error->domain, FeedError::transportDomain) << why;
        EXPECT_TRUE(result.body.isEmpty()) << why;
    }

    LoopbackServer server_{answerNothing()};
    QNetworkAccessManager network_;
    QObject requests_;
    FeedLimits limits_;
    std::vector<Result> results_;
};

TEST_F(FeedRequestTest, AsksPastEveryCache) {
    server_.answerWith(answerBody("{}"));
    EXPECT_EQ(fetch().body, "{}");
    ASSERT_EQ(server_.requestLines().size(), 1);
    EXPECT_EQ(server_.requestLines().first(), "GET /zephyrix/feed?lid=5 HTTP/1.1");
    EXPECT_THAT(server_.lastRequest().toLower().toStdString(),
                ::testing::HasSubstr("cache-control: no-cache"));
}

TEST_F(FeedRequestTest, AnswerIsTakenWhateverItsStatus) {
    for (const int status : {200, 201, 400, 401, 403, 404, 410, 418, 429, 500, 503, 599}) {
        server_.answerWith(answerBody(R"({"status": 1})", status));
        const Result result = fetch();
        EXPECT_FALSE(result.error) << status;
        EXPECT_EQ(result.body, R"({"status": 1})") << status;
    }
}

TEST_F(FeedRequestTest, AnswerWithoutEndMarkIsTakenAsFarAsItCame) {
    server_.answerWith(answerRaw("HTTP/1.1 200 OK\r\n\r\n{\"obs\": "));
    const Result result = fetch();
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.body, R"({"obs": )");
}

TEST_F(FeedRequestTest, BrokenConnectionIsATransportError) {
    server_.answerWith(answerRaw("HTTP/1.1 200 OK\r\nContent-Length: 900\r\n\r\n{}"));
    expectTransportError("body shorter than its length");
    server_.answerWith(answerRaw(""));
    expectTransportError("closed without an answer");
    server_.answerWith(answerRaw("SSH-2.0-OpenSSH_9.2\r\n"));
    expectTransportError("another protocol");
    server_.refuse();
    expectTransportError("connection refused");
}

TEST_F(FeedRequestTest, RedirectIsFollowedToAnotherFeedOnly) {
    LoopbackServer other(answerBody("[1]"));
    const auto redirect = [](const QString& to) {
        return answerBody("", 302, "Location: " + to.toUtf8() + "\r\n");
    };
    server_.answerWith(redirect(other.baseAddress()));
    EXPECT_EQ(fetch().body, "[1]");

    server_.answerWith(redirect(server_.baseAddress()));
    const auto before = server_.requestLines().size();
    expectTransportError("loop");
    EXPECT_EQ(server_.requestLines().size() - before, limits_.redirects + 1);

    for (const char* elsewhere :
         {"file:///etc/hostname", "http://example.org/", "ftp://127.0.0.1/"}) {
        server_.answerWith(redirect(QLatin1String(elsewhere)));
        expectTransportError(elsewhere);
        EXPECT_EQ(results_.front().error->code, QNetworkReply::InsecureRedirectError) << elsewhere;
    }
}

TEST_F(FeedRequestTest, SilenceAndTricklesAreGivenUp) {
    limits_ = {.silence = 150ms, .total = 10s};
    expectTransportError("silence");
    EXPECT_EQ(results_.front().error->code, 4);  // QNetworkReply::TimeoutError

    limits_ = {.silence = 10s, .total = 200ms};
    server_.answerWith(answerInDribbles(10ms));
    expectTransportError("a byte now and then");
    EXPECT_TRUE(waitUntil([&] { return server_.connections() == 0; }));
}

TEST_F(FeedRequestTest, EachByteEndsASilence) {
    limits_ = {.silence = 400ms, .total = 1200ms};
    server_.answerWith(answerInDribbles(50ms));
    QElapsedTimer watch;
    watch.start();
    expectTransportError("the whole answer takes too long");
    EXPECT_GE(watch.elapsed(), 1000);
}

// What memory an endless answer takes is measured at the panel.
TEST_F(FeedRequestTest, BodyEndsAtItsLimitAlsoUnpacked) {
    limits_.bytes = 2 * mebibyte;
    const QByteArray most(limits_.bytes, ' ');
    server_.answerWith(answerBody(most));
    EXPECT_EQ(fetch().body.size(), most.size());
    server_.answerWith(answerCompressedZeros(limits_.bytes));
    EXPECT_EQ(fetch().body.size(), most.size()) << "compressed";
    server_.answerWith(answerBody(most + ' '));
    expectTransportError("one byte more than the limit");
}

TEST_F(FeedRequestTest, DestroyedWhileItWaitsItClosesTheConnectionAndStaysSilent) {
    FeedRequest* const request = start();
    ASSERT_TRUE(waitUntil([&] { return server_.requestLines().size() == 1; }));
    delete request;
    EXPECT_TRUE(waitUntil([&] { return server_.connections() == 0; }));
    EXPECT_TRUE(results_.empty());
}

}  // namespace
}  // namespace zephyrix
