#include <array>
#include <cmath>
#include <cstdio>
#include <memory>

#include <QApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ToldWakeSource.h"
#include "cells/ForecastCell.h"
#include "cells/ObsCell.h"
#include "cells/Registration.h"
#include "foundation/Clock.h"
#include "host/AppearanceSchedule.h"
#include "support/ChosenPlace.h"
#include "support/DataLines.h"
#include "support/Documents.h"
#include "support/LoopbackServer.h"
#include "support/ScopedEnvironment.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;

constexpr double minute = 60.0;
constexpr double hour = 3600.0;
constexpr double day = 86400.0;
const Instant noon = Instant::fromSecondsSince1970(1433152800);  // 2015-06-01 12:00 in Berlin

/// A panel that stays on screen for as long as the test says, in no time at all.
class AppearanceScheduleTest : public ::testing::Test {
  protected:
    AppearanceScheduleTest() {
        qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("zephyrix-panel"));
        registerCells();
        UserDefaults::standard().set(QStringLiteral("showingAll"), true);
    }

    /// The stored document: fetched, and observed, at these times.
    static void store(Instant fetched, Instant observed) {
        auto document =
            FeedAnswer::fromBody(feedDocument(14.0, observed), Number(18228265)).document;
        document.insertDtg = fetched;
        UserDefaults::standard().set(QStringLiteral("lastWeatherData"), document.asDict());
    }

    /// The host shows the panel; the fetch that this starts ends.
    void show() {
        if (!controller_)
            make();
        controller_->viewWillAppear(false);
        schedule_->panelAppeared();
        settle();
    }
    /// Another start of the program.
    void restart() {
        schedule_.reset();
        controller_.reset();
        wakeUps_ = 0;
        show();
    }
    void make() {
        controller_ = std::make_unique<TodayViewController>(
            [this](const auto& then) { then(server_.baseAddress()); });
        controller_->tableView()->resize(375, 250);
        settle();
        auto source = std::make_unique<ToldWakeSource>();
        wakes_ = source.get();
        schedule_ = std::make_unique<AppearanceSchedule>(*controller_, std::move(source));
    }
    void settle() {
        EXPECT_TRUE(waitUntil([this] { return !controller_->isRefreshing(); }));
        controller_->tableView()->layoutIfNeeded();
    }
    /// Time goes by; what is due on the way happens in order.
    void goTo(Instant moment) {
        while (wakes_->moment() && *wakes_->moment() <= moment) {
            now_ = std::max(now_, *wakes_->moment());
            ASSERT_LT(++wakeUps_, 1000) << "it turns round and round";
            wakes_->comeDue();
            settle();
        }
        now_ = moment;
    }
    void wait(double seconds) { goTo(now_.addingSeconds(seconds)); }
    /// Somebody sets the clock.
    void setClock(Instant moment) {
        now_ = moment;
        Q_EMIT wakes_->clockChanged();
        settle();
    }

    [[nodiscard]] double secondsToNext() const { return wakes_->moment()->secondsSince(now_); }
    [[nodiscard]] int requests() const { return static_cast<int>(server_.requestLines().size()); }
    [[nodiscard]] ObsCell* observation() const {
        return qobject_cast<ObsCell*>(controller_->tableView()->cellForRow({0, 0}));
    }
    [[nodiscard]] Label* age() const {
        return observation()->findChild<Label*>(QStringLiteral("ageLabel"));
    }
    [[nodiscard]] QString firstDay() const {
        const auto* row = qobject_cast<ForecastCell*>(controller_->tableView()->cellForRow({1, 0}));
        return row->data()->first().toMap().value(QStringLiteral("date")).toString();
    }

    Instant now_ = noon;
    int wakeUps_ = 0;
    ReplacedClock clock_{[this] { return now_; }};
    // The feed's stations report each half hour.
    LoopbackServer server_{[this](QTcpSocket& client) {
        const double seconds = now_.secondsSince1970();
        const Instant reported = now_.addingSeconds(-std::fmod(seconds, hour / 2));
        answerBody(feedDocument(21.0, reported))(client);
    }};
    std::unique_ptr<TodayViewController> controller_;
    ToldWakeSource* wakes_ = nullptr;
    std::unique_ptr<AppearanceSchedule> schedule_;
};

TEST_F(AppearanceScheduleTest, WithoutAPlaceNothingEverWakes) {
    show();
    EXPECT_FALSE(wakes_->moment());
}

TEST_F(AppearanceScheduleTest, FetchesWhenTheDocumentComesOfAgeAndNotBefore) {
    choosePlace();
    store(noon.addingSeconds(-200.0), noon);
    show();
    EXPECT_EQ(requests(), 0);
    wait(399.9);
    EXPECT_EQ(wakeUps_, 0);
    wait(0.2);
    EXPECT_EQ(wakeUps_, 1);
    EXPECT_EQ(requests(), 1);
    EXPECT_NEAR(secondsToNext(), 600.0, 0.2);
}

TEST_F(AppearanceScheduleTest, WaitsLongerAfterEachFailedFetchUntilOneSucceeds) {
    choosePlace();
    store(noon.addingSeconds(-650.0), noon);
    const auto windows = QApplication::topLevelWidgets().size();
    // Neither an answer that is no JSON nor one without weather is a new document.
    for (const char* answer : {"<html>", "{}"}) {
        server_.answerWith(answerBody(answer));
        show();
        for (const double expected : {1.0, 2.0, 5.0, 10.0, 10.0}) {
            EXPECT_NEAR(secondsToNext(), expected * minute, 0.01) << answer;
            EXPECT_TRUE(wakes_->watchesNetwork());
            wait(secondsToNext());
        }
    }
    EXPECT_EQ(requests(), 12);
    EXPECT_EQ(wakeUps_, 10);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows + 1) << "an error is never a popup";

    server_.answerWith(answerBody(feedDocument(21.0, now_)));
    wait(secondsToNext());
    EXPECT_NEAR(secondsToNext(), 10.0 * minute, 0.01);
    EXPECT_FALSE(wakes_->watchesNetwork());
    server_.answerWith(answerBody("<html>"));
    wait(secondsToNext());
    EXPECT_NEAR(secondsToNext(), 1.0 * minute, 0.01) << "the row of delays begins anew";
}

TEST_F(AppearanceScheduleTest, TriesSoonAfterTheNetworkHasComeBack) {
    choosePlace();
    server_.refuse();
    show();
    wait(20.0 * minute);
    EXPECT_GT(secondsToNext(), 5.0 * minute);
    for (int news = 0; news < 5; ++news)  // a network that comes sends a handful of messages
        Q_EMIT wakes_->networkReturned();
    EXPECT_NEAR(secondsToNext(), 3.0, 0.01);
    wait(3.0);
    EXPECT_NEAR(secondsToNext(), 1.0 * minute, 0.01);
}

TEST_F(AppearanceScheduleTest, AtMidnightTheForecastBeginsWithTheNewDayWithoutAFetch) {
    choosePlace();
    forEachLine("host/midnights.tsv", [this](const DataLine& line) {
        const QByteArray name = line.utf8(0);
        const ScopedEnvironment zone{{"TZ", name.constData()}};
        now_ = Instant::fromSecondsSince1970(line.number(1));
        // The clock runs behind the document, so that nothing else is ever due.
        store(now_.addingSeconds(3 * day), now_.addingSeconds(3 * day));
        restart();
        EXPECT_NEAR(wakes_->moment()->secondsSince1970(), line.number(2), 0.01);
        wait(secondsToNext());
        EXPECT_EQ(wakeUps_, 1);
        EXPECT_NEAR(secondsToNext(), day, 2 * hour);
    });

    now_ = Instant::fromSecondsSince1970(1433195970);  // 2015-06-01 23:59:30
    store(now_, now_);
    restart();
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-01"));
    wait(29.9);
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-01"));
    wait(0.2);
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-02"));
    EXPECT_EQ(requests(), 0);
}

TEST_F(AppearanceScheduleTest, ChangeOfZoneReloadsTheRowsWithoutAFetch) {
    choosePlace();
    now_ = noon.addingSeconds(6 * hour);  // tomorrow in Tokyo
    store(now_, now_);
    show();
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-01"));
    const ScopedEnvironment zone{{"TZ", "Asia/Tokyo"}};
    Q_EMIT wakes_->zoneChanged();
    settle();
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-02"));
    EXPECT_EQ(requests(), 0);
    EXPECT_EQ(wakeUps_, 0);
}

TEST_F(AppearanceScheduleTest, JumpOfADayReloadsAndFetchesOnlyWhatIsOfAge) {
    choosePlace();
    store(noon, noon);
    show();
    setClock(now_.addingSeconds(5.0));
    EXPECT_EQ(requests(), 0) << "a small correction";

    setClock(noon.addingSeconds(day));
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-02"));
    EXPECT_NEAR(secondsToNext(), 600.0, 0.01);

    setClock(noon);
    EXPECT_EQ(requests(), 1);
    EXPECT_NEAR(secondsToNext(), 12 * hour, 0.01) << "midnight; the document is of tomorrow";
    EXPECT_TRUE(age()->isHidden());

    // By a document that is young at both times the rows follow the clock alone.
    store(noon.addingSeconds(2 * day), noon);
    restart();
    setClock(noon.addingSeconds(day));
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-02"));
    EXPECT_EQ(age()->text(), QStringLiteral("24 h ago"));
    setClock(noon);
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-01"));
    EXPECT_TRUE(age()->isHidden());
    EXPECT_EQ(requests(), 1);
}

TEST_F(AppearanceScheduleTest, ResumeWithoutANetworkBeginsTheDelaysAnew) {
    choosePlace();
    show();
    server_.refuse();
    wait(hour);
    setClock(now_.addingSeconds(8 * hour));  // asleep
    EXPECT_NEAR(secondsToNext(), 1.0 * minute, 0.01);
    setClock(now_.addingSeconds(-8 * hour));
    EXPECT_LE(secondsToNext(), 10.0 * minute) << "no delay is measured by a clock of yesterday";
}

TEST_F(AppearanceScheduleTest, HiddenNothingWakesUp) {
    choosePlace();
    make();
    controller_->viewWillAppear(false);
    schedule_->panelAppeared();
    EXPECT_TRUE(controller_->isRefreshing());
    schedule_->panelDisappeared();
    server_.refuse();
    settle();
    EXPECT_FALSE(wakes_->moment()) << "the fetch failed after the panel was closed";
    EXPECT_FALSE(wakes_->watchesNetwork());
    goTo(now_.addingSeconds(day));
    EXPECT_EQ(wakeUps_, 0);
}

TEST_F(AppearanceScheduleTest, RowsOfYesterdayAreNotShownAgain) {
    choosePlace();
    now_ = Instant::fromSecondsSince1970(1433195970);  // 2015-06-01 23:59:30
    store(now_, now_);
    show();
    schedule_->panelDisappeared();
    wait(minute);
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-01")) << "hidden, nobody minds";
    show();
    EXPECT_EQ(firstDay(), QStringLiteral("2015-06-02"));
    EXPECT_EQ(requests(), 0);
}

TEST_F(AppearanceScheduleTest, RowSaysFromTwoHoursOnHowOldItIs) {
    choosePlace();
    server_.answerWith(answerBody(feedDocument(21.0, noon)));  // a station that went silent
    show();
    wait(2 * hour - 1.0);
    EXPECT_TRUE(age()->isHidden());
    EXPECT_EQ(observation()->toolTip(), QString());
    wait(1.1);
    EXPECT_FALSE(age()->isHidden());
    EXPECT_EQ(age()->text(), QStringLiteral("2 h ago"));
    EXPECT_EQ(observation()->toolTip(), age()->text());
    EXPECT_THAT(observation()->accessibleName().toStdString(), HasSubstr("2 h ago"));
    server_.refuse();
    wait(hour);
    EXPECT_EQ(age()->text(), QStringLiteral("3 h ago"));
}

TEST_F(AppearanceScheduleTest, ADayOnScreenTakesFewWakeUps) {
    choosePlace();
    forEachLine("host/days_on_screen.tsv", [this](const DataLine& line) {
        now_ = noon;
        store(noon, noon);
        server_.answerWith([&](QTcpSocket& client) {
            const double late = line.isYes(2) ? std::fmod(now_.secondsSince(noon), hour / 2)
                                              : now_.secondsSince(noon);
            answerBody(line.isYes(1) ? feedDocument(21.0, now_.addingSeconds(-late))
                                     : "<html>")(client);
        });
        const int before = requests();
        restart();
        wait(day);
        const int asked = requests() - before;
        std::printf("a day on screen, %-17s %d wake-ups, %d requests\n", qPrintable(line[0]),
                    wakeUps_, asked);
        EXPECT_LE(wakeUps_, line.integer(4));
        EXPECT_LE(asked, line.integer(3));
        EXPECT_GE(asked, 143);
    });
    schedule_->panelDisappeared();
    const int before = requests();
    wakeUps_ = 0;
    wait(day);
    std::printf("a day hidden: %d wake-ups, %d requests\n", wakeUps_, requests() - before);
    EXPECT_EQ(wakeUps_, 0);
    EXPECT_EQ(requests(), before);
}

}  // namespace
}  // namespace zephyrix
