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

TEST(NetworkHttpClient, BearsEveryKindOfAnswer) {
    struct Case {
        const char* why;
        FakeService::Answer answer;
        const char* outcome;
    };
    const auto status = [](int code, const char* body) {
        return [=](const Request&, Response& response) {
            response.status = code;
            response.set_content(body, "application/json");
        };
    };
    for (const Case& c : {
             Case{"fine", status(200, "{}"), "200 {}"},
             Case{"deprecated", status(203, "{}"), "203 {}"},
             Case{"an error with its reason", status(400, "{\"reason\"}"), "400 {\"reason\"}"},
             Case{"forbidden", status(403, "no"), "403 no"},
             Case{"not there", status(404, "no"), "404 no"},
             Case{"too many", status(429, "no"), "429 no"},
             Case{"down", status(503, "no"), "503 no"},
             Case{"compressed",
                  [](const Request&, Response&response) {  // the server compresses it for itself
                      response.set_content(std::string(50'000, '0'), "application/json");
                  },
                  "200 00000000000000000000"},
             Case{"too large only when unpacked",
                  [](const Request&, Response&response) {
                      response.set_content(std::string(100'001, '0'), "application/json");
                  },
                  "failure"},
             Case{"one redirect",
                  [](const Request&request, Response&response) {
                      if (request.path == "/")
                          response.set_redirect("/there");
                      else
                          response.set_content("there", "text/plain");
                  },
                  "200 there"},
             Case{"redirects without end",
                  [](const Request&, Response&response) { response.set_redirect("/again"); },
                  "failure"},
             Case{"to a file",
                  [](const Request&, Response&response) {
                      response.set_redirect("file:///etc/hostname");
                  },
                  "failure"},
             Case{"a trickle past the deadline",
                  [](const Request&, Response&response) {
                      response.set_chunked_content_provider(
                          "text/plain", [](std::size_t, httplib::DataSink& sink) {
                              std::this_thread::sleep_for(20ms);
                              return sink.write("0", 1);
                          });
                  },
                  "failure"},
             Case{"broken off",
                  [](const Request&, Response&response) {
                      response.set_content_provider(
                          1000, "text/plain",
                          [](std::size_t, std::size_t, httplib::DataSink& sink) {
                              sink.write("0", 1);
                              return false;
                          });
                  },
                  "failure"},
         }) {
        const FakeService service(c.answer);
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(outcome(service.address()), c.outcome) << c.why;
        EXPECT_LT(timer.elapsed(), 5000) << c.why;
    }
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
