// A day of many bridges against one service, at a clock that moves only when told.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include "FakeService.h"
#include "Telling.h"
#include "support/TestHome.h"
#include "weather/HttpDate.h"
#include "weather/MetNorway.h"
#include "weather/NetworkHttpClient.h"
#include "weather/ServiceWeather.h"

namespace zephyrix {
namespace {

using httplib::Request;
using httplib::Response;
using namespace zephyrix::testing;

constexpr double halfHour = 1800.0;
constexpr double day = 86400.0;
const MetNorway metNorway;
const Place oslo = placeAt(59.91, 10.75, "Europe/Oslo");
const Instant start = at("2026-06-01T00:00:00Z");

std::string series() {
    QByteArrayList steps;
    for (int hour = 0; hour < 48; ++hour)
        steps
            << R"({"time":")" +
                   start.addingSeconds(3600.0 * hour).toDateTime().toString(Qt::ISODate).toUtf8() +
                   R"(","data":{"instant":{"details":{"air_temperature":10}}}})";
    return R"({"properties":{"timeseries":[)" + steps.join(',').toStdString() + "]}}";
}

/// Answers for all expire together, at each full and half hour, when the weather is new.
class Service {
  public:
    Service()
        : server(
              [this](const Request& request, Response& response) { answer(request, response); }) {}

    struct Asked {
        double time;  // seconds from the start
        double expires;
    };

    double now = 0.0;
    std::map<std::string, std::vector<Asked>> asked;  // by who asks
    int unchanged = 0;
    int wrongDates = 0;
    FakeService server;

  private:
    void answer(const Request& request, Response& response) {
        const double begin = std::floor(now / halfHour) * halfHour;
        const auto text = [](double time) {
            return httpDate(start.addingSeconds(time)).toStdString();
        };
        response.set_header("Date", text(now));
        response.set_header("Expires", text(begin + halfHour));
        // New weather every two hours only.
        const double modified = std::floor(now / 7200.0) * 7200.0;
        response.set_header("Last-Modified", text(modified));
        const std::string known = request.get_header_value("If-Modified-Since");
        auto& mine = asked[request.get_header_value("User-Agent")];
        if (known.empty() != mine.empty())
            ++wrongDates;
        mine.push_back({now, begin + halfHour});
        if (known == text(modified)) {
            response.status = 304;
            ++unchanged;
        } else {
            response.set_content(weather_, "application/json");
        }
    }

    std::string weather_ = series();
};

TEST(SimulatedDay, ManyBridgesKeepTheTermsAndDoNotComeTogether) {
    constexpr int bridges = 10;
    Service service;
    const NetworkHttpClient http;
    std::vector<std::unique_ptr<AnswerStore>> stores;
    std::vector<std::unique_ptr<ServiceWeather>> weathers;
    for (unsigned i = 0; i < bridges; ++i) {
        stores.push_back(std::make_unique<AnswerStore>(freshFolder()));
        weathers.push_back(std::make_unique<ServiceWeather>(
            metNorway, service.server.address(),
            ServiceWeather::Surroundings{http, *stores.back(),
                                         [engine = std::make_shared<std::mt19937>(i)] {
                                             return std::uniform_real_distribution<double>(
                                                 0.0, 1.0)(*engine);
                                         },
                                         "bridge " + QByteArray::number(i)}));
    }
    // Each is asked as soon as its weather says that there may be something new, as a panel or a
    // cache in a hurry would, and every ten minutes at the least.
    std::multimap<double, std::size_t> calls;
    for (std::size_t i = 0; i < bridges; ++i)
        calls.emplace(60.0 * static_cast<double>(i), i);
    while (calls.begin()->first < day) {
        const auto [time, bridge] = *calls.begin();
        calls.erase(calls.begin());
        service.now = time;
        const auto weather = weathers[bridge]->weatherAt(oslo, start.addingSeconds(time));
        ASSERT_TRUE(weather && !weather->isHeldOver) << time;
        const double valid = weather->validUntil->secondsSince(start);
        ASSERT_GT(valid, time);
        calls.emplace(std::min(valid, time + 600.0), bridge);
    }

    std::map<long, int> inOneSecond;
    std::size_t most = 0;
    for (const auto& [who, requests] : service.asked) {
        most = std::max(most, requests.size());
        for (std::size_t i = 1; i < requests.size(); ++i) {
            EXPECT_GE(requests[i].time, requests[i - 1].expires) << who;
            EXPECT_GE(requests[i].time - requests[i - 1].time, 600.0) << who;
            ++inOneSecond[static_cast<long>(requests[i].time)];
        }
    }
    int together = 0;
    int onTheHour = 0;
    for (const auto& [second, count] : inOneSecond) {
        together = std::max(together, count);
        onTheHour += second % 1800 == 0 ? count : 0;
    }
    std::printf(
        "%d bridges, at most %zu requests each, %d of all 304, at most %d in one second, "
        "%d in the first second of a half hour\n",
        bridges, most, service.unchanged, together, onTheHour);
    EXPECT_EQ(service.asked.size(), std::size_t(bridges));
    EXPECT_LE(most, 48U);  // the half hours of a day
    EXPECT_GE(most, 40U);
    EXPECT_GT(service.unchanged, bridges * 30);
    EXPECT_EQ(service.wrongDates, 0);
    EXPECT_LE(together, 4);
    EXPECT_LE(onTheHour, bridges);
}

}  // namespace
}  // namespace zephyrix
