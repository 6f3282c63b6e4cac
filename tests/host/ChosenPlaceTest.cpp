// The whole way on real programs: a name is typed without its accents, and the panel shows what a
// weather service says about that place, in polar night and in Russian.
#include <utility>

#include <gtest/gtest.h>

#include "PanelProgram.h"
#include "XDisplay.h"
#include "foundation/Clock.h"
#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "support/LoopbackServer.h"
#include "support/ScopedEnvironment.h"
#include "support/TestHome.h"
#include "weather/FakeService.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr qint64 tromso = 3133895;
constexpr qint64 noonInPolarNight = 1797850800;  // 2026-12-21 12:00 in Oslo
constexpr int day = 86400;                       // seconds

/// Open-Meteo as it answers at that noon: 11.6 degrees of frost below a clear sky. Berlin, where
/// the panel begins, is a degree above zero, so that the one cannot pass for the other.
void answerAsOpenMeteo(const httplib::Request& request, httplib::Response& response) {
    const bool isTromso = request.get_param_value("latitude") == "69.6489" &&
                          request.get_param_value("longitude") == "18.9551";
    const QByteArray midnights = QByteArray::number(noonInPolarNight - day / 2) + ',' +
                                 QByteArray::number(noonInPolarNight + day / 2);
    const QByteArray answer =
        R"({"utc_offset_seconds":3600,"current":{"time":)" + QByteArray::number(noonInPolarNight) +
        R"(,"interval":900,"temperature_2m":)" + (isTromso ? "-11.6" : "1.0") +
        R"(,"dew_point_2m":-14.9,"precipitation":0.0,"weather_code":0,"cloud_cover":3,
        "pressure_msl":987.4,"wind_speed_10m":14.2,"wind_direction_10m":200,
        "wind_gusts_10m":25.1},"daily":{"time":[)" +
        midnights + R"(],"weather_code":[0,73],"temperature_2m_max":[-9.2,-3.8],
        "temperature_2m_min":[-14.7,-12.1]}})";
    response.set_content(answer.toStdString(), "application/json");
}

/// The seconds from now to that noon, as text.
QByteArray untilPolarNight() {
    const double seconds = static_cast<double>(noonInPolarNight) - Clock::now().secondsSince1970();
    return QByteArray::number(seconds, 'f', 0);
}

/// `zephyrix-feedd` with that service as its source; its address once it listens.
class BridgedFeed {
  public:
    BridgedFeed() {
        process_.start(QStringLiteral(PROGRAM_DIR "/zephyrix-feedd-ahead"),
                       {QStringLiteral("--source"), QStringLiteral("open-meteo"),
                        QStringLiteral("--source-address"),
                        QStringLiteral("open-meteo=") + service_.address().toString()});
        EXPECT_TRUE(process_.waitForReadyRead());
        address_ = QString::fromUtf8(process_.readAllStandardOutput().trimmed());
        address_.remove(QStringLiteral("listening on "));
    }
    ~BridgedFeed() {
        process_.terminate();
        process_.waitForFinished();
    }
    [[nodiscard]] QString address() const { return address_; }
    [[nodiscard]] bool wasAsked(const char* words) {
        return waitUntil([&] { return (log_ += process_.readAllStandardError()).contains(words); });
    }

  private:
    FakeService service_{answerAsOpenMeteo};
    QProcess process_;
    QString address_;
    QByteArray log_;
};

/// A user in Berlin who reads Russian, on 21 December.
class ChosenPlaceTest : public ::testing::Test {
  protected:
    ChosenPlaceTest() {
        panel_.runAs({QStringLiteral(PROGRAM_DIR "/zephyrix-panel-ahead")});
        panel_.choosePlace();
    }
    [[nodiscard]] Outcome report(const char* options) {
        return panel_.run(QString::fromLatin1(options).split(u' ') + fromFeed_);
    }
    static LocationResult chosenPlace() {
        const auto suite = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
        return LocationResult(suite->dictionary(QStringLiteral("location")).value());
    }

    // Before the programs that it is for.
    const ScopedEnvironment surroundings_{{"LANG", "ru_RU.UTF-8"},
                                          {"LC_ALL", ""},
                                          {"LANGUAGE", ""},
                                          {"TEST_CLOCK_AHEAD", untilPolarNight().constData()},
                                          {"XDG_CACHE_HOME", freshFolder().toUtf8().constData()}};
    PanelProgram panel_;
    BridgedFeed feed_;
    const QStringList fromFeed_{QStringLiteral("--feed"), feed_.address()};
};

QByteArray runZephyrix(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(PROGRAM_DIR "/zephyrix"), arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

TEST_F(ChosenPlaceTest, AtATerminalANameWithoutAccentsBecomesTheWeatherThatTheServiceTells) {
    const QByteArray found =
        runZephyrix({QStringLiteral("place"), QStringLiteral("search"), QStringLiteral("tromso")});
    ASSERT_TRUE(found.startsWith("3133895   Тромсё, ")) << found.toStdString();
    runZephyrix({QStringLiteral("place"), QStringLiteral("set"),
                 QString::fromUtf8(found.left(found.indexOf(' ')))});

    // 14.2 knots are 4 Beaufort; a clear sky is "sunny" by day.
    EXPECT_EQ(report("--text").out.toStdString(),
              "Тромсё 12:00\n"
              "-12°C Ясно\n"
              "Ветер 4 балл. 200°\n"
              "Осадки 0,0 мм 0,2ч\n"
              "Давление 987,4 гПа\n"
              "(Open-Meteo)\n"
              "Weather data by Open-Meteo.com (CC BY 4.0)\n");
    const QJsonObject bar = report("--format waybar").json();
    EXPECT_EQ(bar[QLatin1String("text")], QStringLiteral("\U0001F319 -12°C")) << "a moon";
    EXPECT_EQ(bar[QLatin1String("class")].toVariant().toStringList(),
              QStringList({QStringLiteral("clear"), QStringLiteral("night")}));
    EXPECT_EQ(report("--format {high}|{low}|{age}").out.toStdString(), "-9°C|-15°C|\n");
}

/// The same with a panel on the screen and the window of `zephyrix` beside it.
class ChosenPlaceOnScreenTest : public ChosenPlaceTest {
  protected:
    void SetUp() override {
        if (!display_.isRunning())
            GTEST_SKIP() << "Xvfb is not installed";
        qputenv("DISPLAY", display_.name().toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    }
    void TearDown() override {
        for (QProcess* const process : {&window_, &shown_})
            if (process->state() != QProcess::NotRunning) {
                process->terminate();
                EXPECT_TRUE(process->waitForFinished());
            }
    }
    [[nodiscard]] std::optional<XDisplay::Window> windowNamed(const char* title) const {
        std::optional<XDisplay::Window> found;
        EXPECT_TRUE(waitUntil([&] {
            found = display_.window();
            return found && found->title == QLatin1String(title);
        })) << title;
        return found;
    }
    /// Of a window, once it is painted and paints no more.
    [[nodiscard]] QByteArray steadyPicture(const XDisplay::Window& window) const {
        QByteArray picture;
        EXPECT_TRUE(waitUntil([&] {
            const QByteArray last = std::exchange(picture, display_.picture(window));
            return !last.isEmpty() && last == picture;
        }));
        return picture;
    }

    XDisplay display_;
    QProcess shown_;   // the panel
    QProcess window_;  // of the main application
};

TEST_F(ChosenPlaceOnScreenTest, ANameTypedWithoutAccentsBecomesTheWeatherOfThePanel) {
    panel_.start(shown_, QStringList{QStringLiteral("--window")} + fromFeed_);
    ASSERT_TRUE(feed_.wasAsked("lid=18228265&"));
    // Until it shows weather, its window has the same title as the other one.
    ASSERT_TRUE(waitUntil([&] {
        const auto panel = display_.window();
        return panel && panel->title.contains(QLatin1Char('('));
    }));

    window_.start(QStringLiteral(PROGRAM_DIR "/zephyrix"), {QStringLiteral("zephyrix://widget")});
    const auto window = windowNamed("Zephyrix");
    ASSERT_TRUE(window);
    // A window is mapped before it is shown whole; what is typed then is not lost on a user.
    const QByteArray empty = steadyPicture(*window);
    display_.type(*window, "tromso");
    ASSERT_TRUE(waitUntil([&] { return display_.picture(*window) != empty; })) << "typed";
    display_.press(*window, XDisplay::Key::Return);
    ASSERT_TRUE(waitUntil([] { return chosenPlace().uid() == Number(tromso); }));
    EXPECT_EQ(chosenPlace().name(), QStringLiteral("Тромсё"));
    EXPECT_EQ(chosenPlace().objTimeZone().id(), "Europe/Oslo");

    ASSERT_TRUE(feed_.wasAsked("lid=3133895&")) << "by the panel that is on the screen";
    const auto observed = [this](const char* what) {
        const QVariantMap document = panel_.setting(QStringLiteral("lastWeatherData")).toMap();
        return document.value(QStringLiteral("obs")).toMap().value(QLatin1String(what));
    };
    EXPECT_TRUE(waitUntil([&] { return observed("tt").toDouble() == -11.6; }));
    EXPECT_EQ(observed("symbol").toLongLong(), 2000000) << "no sun at noon";

    display_.press(*window, XDisplay::Key::Escape);
    EXPECT_TRUE(waitUntil([&] { return window_.state() == QProcess::NotRunning; }));
    EXPECT_EQ(window_.exitCode(), 0);
}

}  // namespace
}  // namespace zephyrix
