#include <random>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

#include "FakeService.h"
#include "Telling.h"
#include "support/DataLines.h"
#include "support/TestHome.h"
#include "weather/HttpDate.h"
#include "weather/NetworkHttpClient.h"
#include "weather/OpenMeteo.h"
#include "weather/ServiceWeather.h"

namespace zephyrix {
namespace {

using httplib::Request;
using httplib::Response;
using namespace zephyrix::testing;

const OpenMeteo openMeteo;
const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");
const Place potsdam = placeAt(52.40, 13.06, "Europe/Berlin");
const Instant start = at("2026-06-01T12:00:00Z");

std::string weatherOf(Instant time, double temperature = 14.8) {
    return QStringLiteral(R"({"current":{"time":%1,"temperature_2m":%2}})")
        .arg(time.secondsSince1970(), 0, 'f', 0)
        .arg(temperature)
        .toStdString();
}

/// A service with its fake server and a folder of its own; chance is always 0.
class Client {
  public:
    Client() : server([](const Request&, Response&) {}) {}

    [[nodiscard]] ServiceWeather weather() const {
        return {openMeteo, server.address(), {http, store, [] { return 0.0; }, "test"}};
    }
    /// Whether a request goes out when asked at that time.
    [[nodiscard]] bool asks(const ServiceWeather& weather, const Place& place, Instant now) const {
        const std::size_t before = server.count();
        (void)weather.weatherAt(place, now);
        return server.count() > before;
    }

    FakeService server;
    NetworkHttpClient http;
    QString folder = freshFolder() + QStringLiteral("/answers");
    AnswerStore store{folder};
};

void answerAsIn(const DataLine& line, Response& response) {
    response.status = static_cast<int>(line.integer(0));
    for (const QString& header : line[1].split(QStringLiteral("; "), Qt::SkipEmptyParts))
        response.set_header(header.section(QStringLiteral(": "), 0, 0).toStdString(),
                            header.section(QStringLiteral(": "), 1).toStdString());
    response.set_content(line[2] == u"good"   ? weatherOf(start)
                         : line[2] == u"deep" ? std::string(100'000, '[')
                                              : line[2].toStdString(),
                         "application/json");
}

TEST(ServiceWeather, AsksAgainWhenTheAnswerAllowsIt) {
    forEachLine("weather/answers.tsv", [](const DataLine& line) {
        Client client;
        client.server.answerWith(
            [&](const Request&, Response& response) { answerAsIn(line, response); });
        const ServiceWeather weather = client.weather();
        const double pause = line.number(3);
        EXPECT_EQ(weather.weatherAt(berlin, start).has_value(), line.isYes(5));
        EXPECT_FALSE(client.asks(weather, berlin, start.addingSeconds(pause - 1)));
        EXPECT_EQ(client.asks(weather, potsdam, start.addingSeconds(1)), line.isYes(4));
        EXPECT_TRUE(client.asks(weather, berlin, start.addingSeconds(pause)));
    });
}

TEST(ServiceWeather, AsksWhetherItHasChangedAndKeepsWhatHasNot) {
    Client client;
    client.server.answerWith([](const Request&, Response& response) {
        response.set_header("Last-Modified", "Mon,  1 Jun 2026 11:58:00 GMT");  // oddly spelled
        response.set_content(weatherOf(start), "application/json");
    });
    const ServiceWeather weather = client.weather();
    const auto first = weather.weatherAt(berlin, start);
    ASSERT_TRUE(first);
    EXPECT_FALSE(client.server.last().has_header("If-Modified-Since"));
    client.server.answerWith([](const Request&, Response& response) { response.status = 304; });
    for (const double later : {600.0, 1200.0}) {
        const auto again = weather.weatherAt(berlin, start.addingSeconds(later));
        EXPECT_EQ(client.server.last().get_header_value("If-Modified-Since"),
                  "Mon,  1 Jun 2026 11:58:00 GMT");
        ASSERT_TRUE(again);
        EXPECT_FALSE(again->isHeldOver);
        EXPECT_EQ(again->observation->temperature, Celsius(14.8));
        EXPECT_EQ(again->fetched, start.addingSeconds(later));
    }
    EXPECT_EQ(client.server.count(), 3U);
}

TEST(ServiceWeather, HoldsTheLastAnswerWhileTheServiceIsAway) {
    Client client;
    client.server.answerWith([](const Request&, Response& response) {
        response.set_content(weatherOf(start), "application/json");
    });
    const ServiceWeather weather = client.weather();
    ASSERT_TRUE(weather.weatherAt(berlin, start));
    client.server.answerWith([](const Request&, Response& response) { response.status = 500; });
    // 10 s, 30 s, 2 min, 10 min, 10 min after each other.
    std::vector<double> asked;
    for (int second = 600; second < 600 + 1400; ++second)
        if (client.asks(weather, berlin, start.addingSeconds(second)))
            asked.push_back(second - 600);
    EXPECT_EQ(asked, (std::vector<double>{0, 10, 40, 160, 760, 1360}));
    const auto held = weather.weatherAt(berlin, start.addingSeconds(2000));
    ASSERT_TRUE(held);
    EXPECT_TRUE(held->isHeldOver);
    EXPECT_EQ(held->fetched, start);  // its age is told
    EXPECT_EQ(held->observation->time, start);
    EXPECT_EQ(held->validUntil, start.addingSeconds(600 + 1360 + 600));
    EXPECT_FALSE(weather.weatherAt(berlin, start.addingSeconds(86401)));  // but not for ever
}

TEST(ServiceWeather, RemembersAcrossStarts) {
    Client client;
    client.server.answerWith([](const Request&, Response& response) {
        response.set_content(weatherOf(start), "application/json");
    });
    EXPECT_TRUE(client.asks(client.weather(), berlin, start));
    EXPECT_FALSE(client.asks(client.weather(), berlin, start.addingSeconds(599)));
    const QFileInfo folder(client.folder);
    EXPECT_EQ(folder.permissions() & 0x0077, QFile::Permissions());
    for (const QFileInfo& file : QDir(client.folder).entryInfoList(QDir::Files))
        EXPECT_EQ(file.permissions() & 0x0077, QFile::Permissions()) << qPrintable(file.fileName());
    // A file that was cut off, or is no such file, is asked for again.
    for (const QByteArray& damaged :
         {QByteArray(), QByteArray("zephyrix-feedd answer 1\nfetched 1"), QByteArray(1000, '\0'),
          QByteArray("{}")}) {
        QFile file(QDir(client.folder).entryInfoList(QDir::Files).constFirst().filePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damaged);
        file.close();
        EXPECT_TRUE(client.asks(client.weather(), berlin, start.addingSeconds(1)));
    }
    client.server.answerWith([](const Request&, Response& response) { response.status = 429; });
    EXPECT_TRUE(client.asks(client.weather(), potsdam, start));
    EXPECT_FALSE(client.asks(client.weather(), potsdam, start.addingSeconds(3599)));
    EXPECT_TRUE(client.asks(client.weather(), potsdam, start.addingSeconds(3600)));
}

TEST(RequestBudget, IsKeptInEveryPeriod) {
    static constexpr std::array limits = {RequestLimit{5, 10.0}, RequestLimit{12, 60.0}};
    RequestBudget budget(limits);
    std::mt19937 engine(7);
    std::vector<double> sent;
    double now = 0.0;
    for (int i = 0; i < 2000; ++i) {
        now += std::uniform_real_distribution<double>(0.0, 3.0)(engine);
        const Instant time = Instant::fromSecondsSince1970(now);
        const auto inLast = [&](double period) {
            return std::count_if(sent.begin(), sent.end(),
                                 [&](double earlier) { return earlier > now - period; });
        };
        const bool isAllowed = inLast(10.0) < 5 && inLast(60.0) < 12;
        ASSERT_EQ(budget.allows(time), isAllowed) << now;
        if (isAllowed) {
            budget.count(time);
            sent.push_back(now);
        }
    }
    EXPECT_GT(sent.size(), 500U);
}

}  // namespace
}  // namespace zephyrix
