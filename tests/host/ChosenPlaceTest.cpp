// The whole way on real programs: a name is typed into the window of `zephyrix`, and the panel
// beside it shows the weather of that place.
#include <utility>

#include <QJsonArray>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include "PanelProgram.h"
#include "XDisplay.h"
#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "support/LoopbackServer.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr qint64 tromso = 3133895;

/// `zephyrix-feedd` in a polar night; its address once it listens.
class PolarFeed {
  public:
    PolarFeed() {
        process_.start(QStringLiteral(PROGRAM_DIR "/zephyrix-feedd"),
                       {QStringLiteral("--scenario"), QStringLiteral("polar-night")});
        EXPECT_TRUE(process_.waitForReadyRead());
        address_ = QString::fromUtf8(process_.readAllStandardOutput().trimmed());
        address_.remove(QStringLiteral("listening on "));
    }
    ~PolarFeed() {
        process_.terminate();
        process_.waitForFinished();
    }
    [[nodiscard]] QString address() const { return address_; }
    [[nodiscard]] bool wasAsked(const char* words) {
        return waitUntil([&] { return (log_ += process_.readAllStandardError()).contains(words); });
    }

  private:
    QProcess process_;
    QString address_;
    QByteArray log_;
};

class ChosenPlaceTest : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!display_.isRunning())
            GTEST_SKIP() << "Xvfb is not installed";
        qputenv("DISPLAY", display_.name().toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
        panel_.choosePlace();
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
    [[nodiscard]] qint64 placeOfTheWeather() const {
        const QVariantMap document = panel_.setting(QStringLiteral("lastWeatherData")).toMap();
        return document.value(QStringLiteral("uid")).toLongLong();
    }

    const ScopedEnvironment russian_{{"LANG", "ru_RU.UTF-8"}, {"LC_ALL", ""}, {"LANGUAGE", ""}};
    XDisplay display_;
    PanelProgram panel_;
    PolarFeed feed_;
    QProcess shown_;   // the panel
    QProcess window_;  // of the main application
};

TEST_F(ChosenPlaceTest, ANameTypedWithoutAccentsBecomesTheWeatherOfThePanel) {
    const QStringList fromFeed{QStringLiteral("--feed"), feed_.address()};
    panel_.start(shown_, QStringList{QStringLiteral("--window")} + fromFeed);
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
    const auto isStored = [] {
        const auto suite = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
        return LocationResult(suite->dictionary(QStringLiteral("location")).value()).uid() ==
               Number(tromso);
    };
    ASSERT_TRUE(waitUntil(isStored));

    ASSERT_TRUE(feed_.wasAsked("lid=3133895&")) << "by the panel that is on the screen";
    EXPECT_TRUE(waitUntil([&] { return placeOfTheWeather() == tromso; }));
    const auto suite = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    const LocationResult place(suite->dictionary(QStringLiteral("location")).value());
    EXPECT_EQ(place.name(), QStringLiteral("Тромсё"));
    EXPECT_EQ(place.objTimeZone().id(), "Europe/Oslo");

    const QJsonObject report = panel_.run(QStringList{QStringLiteral("--json")} + fromFeed).json();
    const QJsonObject row = report.value(QStringLiteral("rows")).toArray().first().toObject();
    EXPECT_EQ(row.value(QStringLiteral("place")), QStringLiteral("Тромсё"));
    EXPECT_TRUE(row.value(QStringLiteral("weather"))
                    .toString()
                    .contains(QRegularExpression(QStringLiteral("^[А-Яа-яё ,]+$"))))
        << row.value(QStringLiteral("weather")).toString().toStdString();
    const QVariantMap obs = panel_.setting(QStringLiteral("lastWeatherData"))
                                .toMap()
                                .value(QStringLiteral("obs"))
                                .toMap();
    EXPECT_NE(obs.value(QStringLiteral("symbol")).toLongLong() / 1'000'000, 1) << "no sun";

    display_.press(*window, XDisplay::Key::Escape);
    EXPECT_TRUE(waitUntil([&] { return window_.state() == QProcess::NotRunning; }));
    EXPECT_EQ(window_.exitCode(), 0);
}

}  // namespace
}  // namespace zephyrix
