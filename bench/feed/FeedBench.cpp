// What the feed server costs. "mapping": from a service's answer to the panel's document, beside
// reading the same JSON and nothing more. "fromCache": one request over loopback for a document
// that is kept, beside a server of the same library that sends the same bytes to everybody.
// "of_floor" is the ratio of the best rounds of both, measured by turns in the same run; "floor_us"
// is the floor.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <thread>

#include <QCoreApplication>
#include <QDateTime>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <httplib.h>

#include "feed/DemonstrationWeather.h"
#include "feed/FeedDocument.h"
#include "feed/FeedServer.h"
#include "foundation/TimeZone.h"
#include "weather/BrightSky.h"
#include "weather/MetNorway.h"
#include "weather/OpenMeteo.h"

namespace {

using namespace zephyrix;

const Instant noon = Instant::fromSecondsSince1970(1780315200.0);  // 2026-06-01 12:00 UTC

Place berlin() {
    return {1, 52.53, 13.38, timeZoneWithName(QStringLiteral("Europe/Berlin"))};
}

double microseconds(const std::function<void()>& operation) {
    const auto start = std::chrono::steady_clock::now();
    operation();
    const std::chrono::duration<double, std::micro> taken =
        std::chrono::steady_clock::now() - start;
    return taken.count();
}

void compare(benchmark::State& state, const std::function<void()>& floor,
             const std::function<void()>& operation) {
    double best = std::numeric_limits<double>::infinity();
    double bestFloor = best;
    for (auto _ : state) {
        bestFloor = std::min(bestFloor, microseconds(floor));
        best = std::min(best, microseconds(operation));
    }
    state.counters["of_floor"] = best / bestFloor;
    state.counters["floor_us"] = bestFloor;
    state.counters["best_us"] = best;
}

QByteArray openMeteoAnswer() {
    return R"({"utc_offset_seconds":7200,"current_units":{"temperature_2m":"°C",
        "wind_speed_10m":"kn"},"current":{"time":1780315200,"interval":900,"temperature_2m":14.8,
        "relative_humidity_2m":84,"dew_point_2m":12.1,"precipitation":0.4,"weather_code":61,
        "cloud_cover":75,"pressure_msl":1006.3,"wind_speed_10m":11.2,"wind_direction_10m":240,
        "wind_gusts_10m":18.5},"daily":{"time":[1780264800,1780351200,1780437600,1780524000,
        1780610400,1780696800],"weather_code":[61,3,0,2,80,95],
        "temperature_2m_max":[15.9,18.2,21.0,20.1,19.5,18.7],
        "temperature_2m_min":[9.4,8.7,10.0,11.2,12.1,10.4]}})";
}

/// As long as a real series: hours for two and a half days, then every six hours to the tenth.
QByteArray metNorwayAnswer() {
    QByteArrayList steps;
    for (int hour = 0; hour < 240; hour += hour < 60 ? 1 : 6) {
        const QString time = noon.addingSeconds(3600.0 * hour).toDateTime().toString(Qt::ISODate);
        const double temperature = std::round(150.0 + 60.0 * std::sin(hour / 3.8)) / 10.0;
        steps
            << QStringLiteral(
                   R"({"time":"%1","data":{"instant":{"details":{"air_pressure_at_sea_level":1006.3,
                "air_temperature":%2,"cloud_area_fraction":62.5,"dew_point_temperature":8.1,
                "relative_humidity":84.0,"wind_from_direction":240.4,"wind_speed":5.0,
                "wind_speed_of_gust":10.3}},"next_12_hours":{"summary":{"symbol_code":"rain"}},
                "next_1_hours":{"summary":{"symbol_code":"rainshowers_day"},"details":
                {"precipitation_amount":0.7}},"next_6_hours":{"summary":{"symbol_code":"rain"},
                "details":{"precipitation_amount":4.0,"air_temperature_max":17.5,
                "air_temperature_min":11.0}}}})")
                   .arg(time)
                   .arg(temperature)
                   .toUtf8();
    }
    return R"({"properties":{"meta":{"units":{"air_temperature":"celsius","wind_speed":"m/s"}},
        "timeseries":[)" +
           steps.join(',') + "]}}";
}

QByteArray brightSkyAnswer() {
    return R"({"weather":{"source_id":1,"timestamp":"2026-06-01T12:00:00+00:00","cloud_cover":88,
        "condition":"rain","dew_point":12.1,"precipitation_10":0.2,"precipitation_30":0.5,
        "precipitation_60":1.4,"pressure_msl":1006.3,"wind_direction_10":240,"wind_speed_10":18.5,
        "wind_gust_speed_60":37.0,"temperature":14.8,"icon":"rain"},"sources":[{"id":1,
        "station_name":"Berlin-Tempelhof","distance":7200.0}]})";
}

void mapping(benchmark::State& state, const WeatherService& service, const QByteArray& answer) {
    const Place place = berlin();
    compare(
        state, [&] { benchmark::DoNotOptimize(QJsonDocument::fromJson(answer)); },
        [&] {
            benchmark::DoNotOptimize(feedDocument(service.read(answer, place, noon), place.zone));
        });
    state.counters["bytes"] = static_cast<double>(answer.size());
}

void mappingOpenMeteo(benchmark::State& state) {
    mapping(state, OpenMeteo(), openMeteoAnswer());
}
BENCHMARK(mappingOpenMeteo);

void mappingMetNorway(benchmark::State& state) {
    mapping(state, MetNorway(), metNorwayAnswer());
}
BENCHMARK(mappingMetNorway);

void mappingBrightSky(benchmark::State& state) {
    mapping(state, BrightSky(), brightSkyAnswer());
}
BENCHMARK(mappingBrightSky);

void request(int port, const std::string& path) {
    httplib::Client client("127.0.0.1", port);
    const auto answer = client.Get(path);
    if (!answer || answer->status != 200)
        std::abort();
}

void fromCache(benchmark::State& state) {
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const DemonstrationWeather source(scenarios().front());
    const DocumentKeeper documents(source);
    const PlaceDirectory places(std::nullopt, PlaceDirectory::Unknown::Invented);
    FeedServer server(documents, places);
    const int port = server.listenOn(0).value();
    std::thread serving([&] { server.serve(); });

    const std::string bytes =
        feedDocument(*source.weatherAt(berlin(), noon), berlin().zone).toStdString();
    httplib::Server bare;
    bare.set_keep_alive_max_count(1);
    bare.Get("/", [&](const httplib::Request&, httplib::Response& response) {
        response.set_content(bytes, "application/json");
    });
    const int barePort = bare.bind_to_any_port("127.0.0.1");
    std::thread servingBare([&] { bare.listen_after_bind(); });

    compare(
        state, [&] { request(barePort, "/"); },
        [&] { request(port, "/zephyrix/WeatherFeed.php?lid=18228265&json=1&widget=1"); });
    server.stop();
    bare.stop();
    serving.join();
    servingBare.join();
}
BENCHMARK(fromCache);

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (std::freopen("/dev/null", "w", stderr) == nullptr)  // a line a request
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
}
