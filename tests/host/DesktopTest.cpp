// The programs as a user has them on a desktop: a display, a bus with a tray, a feed.
#include <memory>
#include <utility>

#include <QDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PanelProgram.h"
#include "TrayBus.h"
#include "XDisplay.h"
#include "foundation/Clock.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/LoopbackServer.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;
using ::testing::Not;
using Key = XDisplay::Key;

const QString toWindow = QStringLiteral("--window");

class DesktopTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { display_ = std::make_unique<XDisplay>(); }
    static void TearDownTestSuite() { display_.reset(); }
    static XDisplay& display() { return *display_; }

    void SetUp() override {
        if (!display().isRunning())
            GTEST_SKIP() << "Xvfb is not installed";
        qputenv("DISPLAY", display().name().toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
        qputenv("XDG_DATA_HOME", (panel_.home() + QStringLiteral("/data")).toUtf8());
        panel_.choosePlace();
        QObject::connect(&process_, &QProcess::readyReadStandardError, &process_,
                         [this] { log_ += process_.readAllStandardError(); });
    }
    void TearDown() override {
        if (process_.state() != QProcess::NotRunning)
            end();
    }

    void start(const QStringList& arguments) {
        log_.clear();
        panel_.start(process_, arguments);
    }
    void startWithFeed(QStringList arguments) {
        start(arguments << QStringLiteral("--feed") << server_.baseAddress());
    }
    void end() {
        process_.terminate();
        EXPECT_TRUE(waitUntil([this] { return process_.state() == QProcess::NotRunning; }));
        EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process_.exitCode(), 0);
    }
    static void runZephyrix(const char* line) {
        EXPECT_EQ(runOurs(QLatin1String("zephyrix ") + QLatin1String(line)).exitCode, 0);
    }

    [[nodiscard]] bool logSays(const QByteArray& words) {
        return waitUntil([&] { return log_.contains(words); });
    }
    /// The window or popup, when the condition holds for it.
    template <class Condition>
    static XDisplay::Window windowWhen(Condition condition) {
        std::optional<XDisplay::Window> found;
        EXPECT_TRUE(waitUntil([&] {
            found = display().window();
            return found && condition(*found);
        }));
        return found.value_or(XDisplay::Window());
    }
    static XDisplay::Window windowWithSource(const char* source) {
        return windowWhen([&](const XDisplay::Window& window) {
            return window.title.contains(QLatin1String(source));
        });
    }
    static bool nothingIsShown() {
        return waitUntil([] { return !display().window(); });
    }

    inline static std::unique_ptr<XDisplay> display_;
    PanelProgram panel_;
    LoopbackServer server_{answerBody(feedDocument(21.0, Clock::now()))};
    QProcess process_;
    QByteArray log_;
};

TEST_F(DesktopTest, FetchesExpandsByKeyboardAndStartsAgainFromItsCache) {
    start({toWindow});
    ASSERT_TRUE(logSays("GET /zephyrix/WeatherFeed.php?lid=18228265&json=1&widget=1 200"));
    const auto collapsed = windowWithSource("Demonstration weather");
    display().press(collapsed, Key::Space);
    const int expanded = collapsed.area.height() + 104;
    const auto hasHeight = [&](const XDisplay::Window& window) {
        return window.area.height() == expanded;
    };
    windowWhen(hasHeight);
    end();

    start({toWindow, QStringLiteral("--feed"), QStringLiteral("http://127.0.0.1:1/")});
    ASSERT_TRUE(logSays("loaded cached weather data"));
    const auto again = windowWhen(hasHeight);
    EXPECT_THAT(again.title.toStdString(), HasSubstr("Demonstration weather"));
    EXPECT_THAT(log_.toStdString(), Not(HasSubstr("ransport error"))) << "nothing was fetched";
    display().press(again, Key::Escape);
    EXPECT_TRUE(waitUntil([this] { return process_.state() == QProcess::NotRunning; }));
}

TEST_F(DesktopTest, TellsHowLongItsPaintsTook) {
    startWithFeed({toWindow, QStringLiteral("--paint-time")});
    QByteArray told;
    EXPECT_TRUE(waitUntil([&] {
        told += process_.readAllStandardOutput();
        return told.count('\n') == 2;
    })) << told.toStdString();
    const auto line = [](const char* paint) {
        return std::string(paint) + ": [0-9.]+ ms, processor [0-9.]+ ms, memory [0-9.]+ MB\n";
    };
    EXPECT_THAT(told.toStdString(),
                ::testing::MatchesRegex(line("first paint") + line("fetched document")));
    const double milliseconds = told.mid(told.indexOf(": ") + 2).split(' ').first().toDouble();
    EXPECT_GT(milliseconds, 1.0);
    EXPECT_LT(milliseconds, 60'000.0) << "from the program's start, not from the machine's";
}

TEST_F(DesktopTest, PlaceAndUnitsOfAnotherProgramShowAtOnce) {
    startWithFeed({toWindow});
    const auto window = windowWithSource("a test");
    const QByteArray celsius = display().picture(window);
    runZephyrix("units temperature F");
    EXPECT_TRUE(waitUntil([&] { return display().picture(window) != celsius; }));
    EXPECT_EQ(server_.requestLines().size(), 1) << "units need no fetch";

    runZephyrix("place set --uid 77 --name Nome --lat 64.5 --lon -165.4 --zone America/Nome");
    EXPECT_TRUE(waitUntil([&] { return server_.requestLines().size() == 2; }));
    EXPECT_THAT(server_.requestLines().constLast().toStdString(), HasSubstr("lid=77&"));
    EXPECT_EQ(display().window()->id, window.id) << "it is still the same window";
}

TEST_F(DesktopTest, OtherSymbolsThatAreChosenShowAtOnceAndAreNotThoseOfTheCache) {
    startWithFeed({toWindow});
    const auto window = windowWithSource("a test");
    QByteArray colour;
    ASSERT_TRUE(waitUntil([&] {
        const QByteArray last = std::exchange(colour, display().picture(window));
        return !last.isEmpty() && last == colour && server_.requestLines().size() == 1;
    }));
    panel_.setSetting(QStringLiteral("symbolSet"), 1);
    EXPECT_TRUE(waitUntil([&] { return display().picture(window) != colour; }));
    panel_.setSetting(QStringLiteral("symbolSet"), 0);
    EXPECT_TRUE(waitUntil([&] { return display().picture(window) == colour; }));
    EXPECT_EQ(server_.requestLines().size(), 1) << "symbols need no fetch";
    end();
}

TEST_F(DesktopTest, RowOpensItsAddress) {
    const QString folder = panel_.home() + QStringLiteral("/data/applications");
    const QString opened = panel_.home() + QStringLiteral("/opened");
    // Without those of the machine, no program is registered.
    const ScopedEnvironment none{{"XDG_DATA_DIRS", "/nowhere"}};
    startWithFeed({toWindow});
    auto window = windowWithSource("a test");
    display().press(window, Key::Return);
    EXPECT_TRUE(logSays("no program opens zephyrix://widget"));

    QDir().mkpath(folder);
    overwrite(folder + QStringLiteral("/stand-in.desktop"),
              "[Desktop Entry]\nType=Application\nName=Stand-in\nExec=" SOURCE_DIR
              "/tests/host/stand-in " +
                  opened.toUtf8() + " %u\nMimeType=x-scheme-handler/zephyrix;\n");
    overwrite(folder + QStringLiteral("/mimeapps.list"),
              "[Default Applications]\nx-scheme-handler/zephyrix=stand-in.desktop\n");
    display().press(window, Key::Return);
    EXPECT_TRUE(waitUntil([&] { return contentOf(opened).endsWith('\n'); }));
    EXPECT_EQ(contentOf(opened), "zephyrix://widget\n");
}

TEST_F(DesktopTest, SecondStartShowsTheFirstAndReportsGoOn) {
    startWithFeed({});
    windowWithSource("a test");
    EXPECT_THAT(log_.toLower().toStdString(), Not(HasSubstr("bus"))) << "none is no trouble";
    const auto second = panel_.run(QString());
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.err, QByteArray()) << "it has shown nothing itself";
    EXPECT_THAT(panel_.run(QStringLiteral("--text")).out.toStdString(), HasSubstr("21"));

    process_.kill();
    EXPECT_TRUE(waitUntil([this] { return process_.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(nothingIsShown());
    startWithFeed({});
    windowWithSource("a test");
}

TEST_F(DesktopTest, OnASmallScreenThePanelStaysOnIt) {
    const ScopedEnvironment scale{{"QT_SCALE_FACTOR", "3"}};  // of 341 x 256 points
    startWithFeed({toWindow, QStringLiteral("--expanded")});
    const auto window = windowWithSource("a test");
    EXPECT_LE(window.area.width(), 1024);
    EXPECT_LE(window.area.height(), 768 - 3 * 40) << "below a title bar";
    display().press(window, Key::Escape);
    EXPECT_TRUE(nothingIsShown());
}

TEST_F(DesktopTest, PanelLivesInTheTrayWhileThereIsOne) {
    TrayBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "dbus-daemon is not installed";
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    startWithFeed({});
    const auto window = windowWithSource("a test");
    EXPECT_FALSE(window.popup);

    bus.trayComes();
    ASSERT_TRUE(waitUntil([&] { return !bus.item().isEmpty(); }));
    display().press(window, Key::Escape);
    ASSERT_TRUE(nothingIsShown());
    ASSERT_EQ(process_.state(), QProcess::Running);

    const auto isPopup = [](const XDisplay::Window& shown) { return shown.popup; };
    bus.clickItem();
    display().press(windowWhen(isPopup), Key::Escape);
    ASSERT_TRUE(nothingIsShown());
    EXPECT_EQ(panel_.run(QString()).exitCode, 0);
    const auto popup = windowWhen(isPopup);
    EXPECT_TRUE(QRect(0, 0, 1024, 768).contains(popup.area));
    display().click(popup, QPoint(-50, 5));
    ASSERT_TRUE(nothingIsShown());

    EXPECT_EQ(log_.count("age of the weather data"), 3) << "it appeared three times";
    bus.trayGoes();
    const auto back = windowWithSource("a test");
    EXPECT_FALSE(back.popup);
    display().press(back, Key::Escape);
    EXPECT_TRUE(waitUntil([this] { return process_.state() == QProcess::NotRunning; }));
}

}  // namespace
}  // namespace zephyrix
