#include <gtest/gtest.h>

#include "FakeService.h"
#include "Telling.h"
#include "support/DataLines.h"
#include "support/TestHome.h"
#include "weather/AutomaticWeather.h"
#include "weather/BrightSky.h"
#include "weather/MetNorway.h"
#include "weather/NetworkHttpClient.h"
#include "weather/OpenMeteo.h"

namespace zephyrix {
namespace {

using httplib::Request;
using httplib::Response;
using namespace zephyrix::testing;

const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");
const Place oslo = placeAt(59.91, 10.75, "Europe/Oslo");
const Instant start = at("2026-06-01T12:00:00Z");

/// All three services behind one address; those that are down answer 500.
class Services {
  public:
    Services()
        : server_(
              [this](const Request& request, Response& response) { answer(request, response); }) {}

    [[nodiscard]] std::string told(const Place& place, Instant now) const {
        const auto weather = automatic_.weatherAt(place, now);
        if (!weather)
            return "nothing";
        return weather->source.toStdString() + (weather->isHeldOver ? ", held over: " : ": ") +
               QByteArray::number(weather->observation->temperature->value()).toStdString() +
               (weather->days ? " and days" : "");
    }

    std::string down;  // the first letters of their paths

  private:
    void answer(const Request& request, Response& response) const {
        const char service = request.path.at(1);  // v1/forecast, weatherapi, current_weather
        if (down.find(service) != std::string::npos) {
            response.status = 500;
            return;
        }
        response.set_content(
            service == 'v'   ? R"({"utc_offset_seconds":7200,"current":{"time":1780315200,
                "temperature_2m":1},"daily":{"time":[1780264800],"temperature_2m_max":[1]}})"
            : service == 'w' ? R"({"properties":{"timeseries":[{"time":"2026-06-01T12:00:00Z",
                "data":{"instant":{"details":{"air_temperature":2}}}}]}})"
                             : R"({"weather":{"source_id":1,"timestamp":"2026-06-01T12:00:00Z",
                "temperature":3},"sources":[{"id":1,"distance":9}]})",
            "application/json");
    }

    [[nodiscard]] ServiceWeather of(const WeatherService& service) const {
        return {service, server_.address(), {http_, store_, [] { return 0.0; }, "test"}};
    }

    FakeService server_;
    NetworkHttpClient http_;
    AnswerStore store_{freshFolder()};
    OpenMeteo openMeteo_;
    MetNorway metNorway_;
    BrightSky brightSky_;
    ServiceWeather first_ = of(openMeteo_);
    ServiceWeather second_ = of(metNorway_);
    ServiceWeather observed_ = of(brightSky_);
    AutomaticWeather automatic_{{&first_, &second_, &observed_}};
};

TEST(AutomaticWeather, TakesTheBestAndTheNextWhenItFails) {
    forEachLine("weather/automatic.tsv", [](const DataLine& line) {
        Services services;
        services.down = line[1].toStdString();
        EXPECT_EQ(services.told(line[0] == u"oslo" ? oslo : berlin, start), line[2].toStdString());
    });
}

TEST(AutomaticWeather, HoldsWhatWasFetchedLastWhenAllAreDown) {
    Services services;
    services.down = "wc";
    EXPECT_EQ(services.told(berlin, start), "Open-Meteo: 1 and days");
    services.down = "vc";
    EXPECT_EQ(services.told(berlin, start.addingSeconds(700)), "MET Norway: 2 and days");
    services.down = "vwc";
    EXPECT_EQ(services.told(berlin, start.addingSeconds(1400)),
              "MET Norway, held over: 2 and days");
    services.down = "wc";
    EXPECT_EQ(services.told(berlin, start.addingSeconds(3000)), "Open-Meteo: 1 and days");
}

}  // namespace
}  // namespace zephyrix
