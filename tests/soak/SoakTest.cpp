// A week of a panel that stays on screen, in fast motion: the clock is the test's, everything else
// is real. What it holds at the end of the first day it must still hold at the end of the last.
#include <array>
#include <cmath>
#include <cstdio>
#include <malloc.h>
#include <memory>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <gtest/gtest.h>

#include "cells/Registration.h"
#include "foundation/Bundle.h"
#include "foundation/Clock.h"
#include "foundation/Screen.h"
#include "host/LivePanel.h"
#include "host/PanelDisplay.h"
#include "host/ToldWakeSource.h"
#include "meteo/MeteoMapping.h"
#include "support/ChosenPlace.h"
#include "support/Documents.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr int days = 7;
constexpr double minute = 60.0;
constexpr double hour = 3600.0;
const Instant monday = Instant::fromSecondsSince1970(1433109600);  // 2015-06-01 0:00 in Berlin

struct Place {
    const char* name;
    double latitude;
    double longitude;
    const char* zone;
};
constexpr std::array places{
    Place{"Berlin", 52.53, 13.38, "Europe/Berlin"},
    Place{"Nome", 64.5, -165.4, "America/Nome"},
    Place{"Longyearbyen", 78.22, 15.65, "Arctic/Longyearbyen"},
    Place{"Auckland", -36.85, 174.76, "Pacific/Auckland"},
};
constexpr std::array languages{"de_DE.UTF-8", "ru_RU.UTF-8", "en_US.UTF-8", "fr_FR.UTF-8"};

/// What a process holds.
struct Holding {
    double heap;      // kB in use
    double resident;  // kB
    qsizetype handles;
    qsizetype threads;

    static Holding now() {
        QFile memory(QStringLiteral("/proc/self/statm"));
        EXPECT_TRUE(memory.open(QIODevice::ReadOnly));
        const double pages = memory.readAll().split(' ').at(1).toDouble();
        const auto entries = [](const char* folder) {
            return QDir(QLatin1String(folder))
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot)
                .size();
        };
        return {static_cast<double>(::mallinfo2().uordblks + ::mallinfo2().hblkhd) / 1024.0,
                pages * 4.0, entries("/proc/self/fd"), entries("/proc/self/task")};
    }
};

class NoDesktop : public ExtensionContext {
  public:
    void openURL(const QUrl& /*url*/, std::function<void(bool)> then) override { then(true); }
};

class Soak : public ::testing::Test {
  protected:
    Soak() {
        qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("zephyrix-panel"));
        registerCells();
        Screen::setMain(QRectF(0, 0, width, 0), 1.0);
        choose(places.front());
    }
    ~Soak() override { display_.letGo(); }

    static void choose(const Place& place) {
        choosePlace({{QStringLiteral("name"), QLatin1String(place.name)},
                     {QStringLiteral("latitude"), place.latitude},
                     {QStringLiteral("longitude"), place.longitude},
                     {QStringLiteral("timezone"), QLatin1String(place.zone)},
                     {QStringLiteral("uid"), static_cast<int>(1000 + place.latitude)}});
    }

    /// As the host does at its start and for another place.
    void makePanel() {
        display_.letGo();
        live_.reset();
        auto wakes = std::make_unique<ToldWakeSource>();
        wakes_ = wakes.get();
        live_ = std::make_unique<LivePanel>(
            [this](const auto& then) { then(server_.baseAddress()); }, context_,
            LivePanel::Size{width, 1.0}, false, std::move(wakes));
        QObject::connect(
            live_.get(), &LivePanel::placeChanged, &receiver_, [this] { makePanel(); },
            Qt::QueuedConnection);
        display_.hold(*live_);
        ++panels_;
    }
    void settle() {
        ASSERT_TRUE(waitUntil([this] { return !live_->controller().isRefreshing(); }));
        live_->controller().tableView()->layoutIfNeeded();
    }
    /// Time goes by; what is due on the way happens.
    void goTo(Instant moment) {
        while (wakes_->moment() && *wakes_->moment() <= moment) {
            now_ = std::max(now_, *wakes_->moment());
            wakes_->comeDue();
            settle();
        }
        now_ = moment;
    }

    void changePlace(const Place& place) {
        const int before = panels_;
        choose(place);
        ASSERT_TRUE(waitUntil([&] { return panels_ > before; }));
        settle();
    }
    void changeLanguage(const char* locale) {
        qputenv("LANG", locale);
        Bundle::main().forgetStringTable();
        MeteoMapping::finalizeStatements();
        makePanel();
        settle();
    }
    void toggle() {
        live_->controller().didPressButton(live_->controller().moreButton());
        live_->view().grab();
    }
    void changeUnits(int day) { sharedSettings()->set(QStringLiteral("temperature"), day % 3); }
    /// The same hours each day, so that the first day has seen every symbol there is.
    void liveThroughADay(int day) {
        for (int h = 0; h < 24; ++h) {
            goTo(monday.addingSeconds((24.0 * day + h) * hour + 59 * minute));
            toggle();
            if (h % 6 == 5)
                changePlace(places.at(static_cast<std::size_t>(h / 6 + 1) % places.size()));
            if (h % 6 == 2)
                changeLanguage(languages.at(static_cast<std::size_t>(h / 6)));
            if (h % 8 == 4)
                changeUnits(h / 8);
            if (h % 12 == 7) {
                display_.hide();
                display_.show();
                settle();
            }
        }
    }

    static constexpr int width = 440;
    Instant now_ = monday;
    ReplacedClock clock_{[this] { return now_; }};
    LoopbackServer server_{[this](QTcpSocket& client) {
        const int h = static_cast<int>(std::fmod(now_.secondsSince(monday) / hour, 24.0));
        answerBody(feedDocument(h, now_.addingSeconds(-minute))
                       .replace("1300000", QByteArray::number(1000000 + 100000 * (h % 6))))(client);
    }};
    NoDesktop context_;
    QObject receiver_;
    PanelDisplay display_{width, false};
    std::unique_ptr<LivePanel> live_;
    ToldWakeSource* wakes_ = nullptr;
    int panels_ = 0;
};

TEST_F(Soak, AfterAWeekItHoldsWhatItHeldAfterADay) {
    ::testing::internal::CaptureStderr();
    QElapsedTimer watch;
    watch.start();
    makePanel();
    display_.show();
    settle();
    std::vector<Holding> evenings;
    qsizetype requests = 0;
    for (int day = 0; day < days; ++day) {
        liveThroughADay(day);
        requests += server_.requestLines().size();
        server_.forgetRequests();
        evenings.push_back(Holding::now());
    }
    const std::string log = ::testing::internal::GetCapturedStderr();
    for (const Holding& evening : evenings)
        std::printf("heap %.0f kB, resident %.0f kB, %d handles, %d threads\n", evening.heap,
                    evening.resident, static_cast<int>(evening.handles),
                    static_cast<int>(evening.threads));
    std::printf("%d days in %.1f s: %d requests, %d panels\n", days,
                static_cast<double>(watch.elapsed()) / 1000.0, static_cast<int>(requests), panels_);
    EXPECT_GT(requests, days * 140);
    EXPECT_EQ(log.find("rror"), std::string::npos) << log.substr(log.find("rror"), 200);
    const Holding& first = evenings.front();
    const Holding& last = evenings.back();
    EXPECT_EQ(last.handles, first.handles);
    EXPECT_EQ(last.threads, first.threads);
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    std::printf("the sanitizer keeps freed memory: its growth is not checked\n");
#else
    EXPECT_LE(last.heap, 1.05 * first.heap);
    EXPECT_LE(last.resident, 1.05 * first.resident);
#endif
}

}  // namespace
}  // namespace zephyrix
