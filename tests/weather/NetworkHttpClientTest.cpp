#include <chrono>

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include "FakeService.h"
#include "weather/HttpDate.h"
#include "weather/NetworkHttpClient.h"

namespace zephyrix {
namespace {

using httplib::Request;
using httplib::Response;
using namespace zephyrix::testing;
using namespace std::chrono_literals;

constexpr HttpLimits tight{.total = 500ms, .bytes = 100'000, .redirects = 3};

/// The status, or "failure".
std::string outcome(const QUrl& address) {
    try {
        const HttpAnswer answer =
            NetworkHttpClient(tight).get({.address = address, .userAgent = "test"});
        return std::to_string(answer.status) + ' ' + answer.body.left(20).toStdString();
    } catch (const HttpFailure&) {
        return "failure";
    }
}

TEST(NetworkHttpClient, SendsAndReceivesHeadersAsTheyStand) {
    FakeService service([](const Request&, Response& response) {
        response.set_header("Date", "Mon, 01 Jun 2026 12:00:00 GMT");
        response.set_header("Expires", "Mon, 01 Jun 2026 12:30:01 GMT");
        response.set_header("Last-Modified", "as I please");
        response.set_header("Cache-Control", "max-age=7");
        response.set_header("Retry-After", "120");
        response.status = 304;
    });
    const HttpAnswer answer =
        NetworkHttpClient().get({.address = service.address(),
                                 .userAgent = "zephyrix-feedd/1 (a@b.example)",
                                 .ifModifiedSince = "as I please, before"});
    EXPECT_EQ(answer.status, 304);
    EXPECT_EQ(answer.date, "Mon, 01 Jun 2026 12:00:00 GMT");
    EXPECT_EQ(answer.expires, "Mon, 01 Jun 2026 12:30:01 GMT");
    EXPECT_EQ(answer.lastModified, "as I please");
    EXPECT_EQ(answer.cacheControl, "max-age=7");
    EXPECT_EQ(answer.retryAfter, "120");
    const Request sent = service.last();
    EXPECT_EQ(sent.get_header_value("User-Agent"), "zephyrix-feedd/1 (a@b.example)");
    EXPECT_EQ(sent.get_header_value("If-Modified-Since"), "as I please, before");
    EXPECT_NE(sent.get_header_value("Accept-Encoding").find("gzip"), std::string::npos);
    EXPECT_FALSE(sent.has_header("Cookie") || sent.has_header("Cache-Control"));
}

void expectOutcome(const char* why, FakeService::Answer answer, const std::string& expected) {
    const FakeService service(std::move(answer));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(outcome(service.address()), expected) << why;
    EXPECT_LT(timer.elapsed(), 5000) << why;
}

/// What the server compresses for itself.
FakeService::Answer zeros(std::size_t count) {
    return [=](const Request&, Response& response) {
        response.set_content(std::string(count, '0'), "application/json");
    };
}

FakeService::Answer redirect(const std::string& to) {
    return [=](const Request& request, Response& response) {
        if (request.path == "/there")
            response.set_content("there", "text/plain");
        else
            response.set_redirect(to);
    };
}

TEST(NetworkHttpClient, BearsEveryKindOfAnswer) {
    for (const int status : {200, 203, 400, 403, 404, 429, 503}) {
        const auto answer = [=](const Request&, Response& response) {
            response.status = status;
            response.set_content(R"({"reason"})", "application/json");
        };
        expectOutcome("a status", answer, std::to_string(status) + R"( {"reason"})");
    }
    expectOutcome("compressed", zeros(50'000), "200 00000000000000000000");
    expectOutcome("too large only when unpacked", zeros(100'001), "failure");
    expectOutcome("one redirect", redirect("/there"), "200 there");
    expectOutcome("redirects without end", redirect("/again"), "failure");
    expectOutcome("to a file", redirect("file:///etc/hostname"), "failure");
    const auto drip = [](std::size_t, httplib::DataSink& sink) {
        std::this_thread::sleep_for(20ms);
        return sink.write("0", 1);
    };
    const auto trickle = [&](const Request&, Response& response) {
        response.set_chunked_content_provider("text/plain", drip);
    };
    expectOutcome("a trickle past the deadline", trickle, "failure");
    const auto breakOff = [](std::size_t, std::size_t, httplib::DataSink& sink) {
        sink.write("0", 1);
        return false;
    };
    const auto broken = [&](const Request&, Response& response) {
        response.set_content_provider(1000, "text/plain", breakOff);
    };
    expectOutcome("broken off", broken, "failure");
    QUrl gone;
    gone = FakeService([](const Request&, Response&) {}).address();
    EXPECT_EQ(outcome(gone), "failure");
}

TEST(HttpDate, IsReadAsItIsWritten) {
    const Instant time = Instant::fromSecondsSince1970(1780315200.0);
    EXPECT_EQ(httpDate(time), "Mon, 01 Jun 2026 12:00:00 GMT");
    EXPECT_EQ(instantFromHttpDate("Mon, 01 Jun 2026 12:00:00 GMT"), time);
    for (const char* text :
         {"", "0", "Mon, 01 Jun 2026 12:00:00 CET", "Mon, 31 Feb 2026 12:00:00 GMT"})
        EXPECT_EQ(instantFromHttpDate(text), std::nullopt) << text;
}

}  // namespace
}  // namespace zephyrix
