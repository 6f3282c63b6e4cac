#include <memory>

#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cells/Registration.h"
#include "foundation/Clock.h"
#include "host/BarFormat.h"
#include "host/BarSymbol.h"
#include "support/DataLines.h"
#include "support/Documents.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const Instant noon = Instant::fromSecondsSince1970(1433152800);  // 2015-06-01 12:00 in Berlin

class BarFormatTest : public ::testing::Test {
  protected:
    BarFormatTest() {
        qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8());
        registerCells();
    }
    static void choosePlace(const QString& name,
                            const QString& zone = QStringLiteral("Europe/Berlin")) {
        QVariantMap place = LocationResult::defaultSearchResult().asDict();
        place.insert(QStringLiteral("name"), name);
        place.insert(QStringLiteral("timezone"), zone);
        UserDefaults::suite(QStringLiteral("group.Zephyrix"))
            ->set(QStringLiteral("location"), place);
    }
    TodayViewController& show(const std::optional<QVariantMap>& changes) {
        controller_ = std::make_unique<TodayViewController>([](const auto&) {});
        if (changes) {
            auto document =
                FeedAnswer::fromBody(feedDocument(14.0, noon), Number(18228265)).document;
            QVariantMap observation = document.obs->asDict();
            for (auto change = changes->begin(); change != changes->end(); ++change)
                observation.insert(change.key(), change.value());
            document.obs = Obs(observation);
            controller_->setLastWeatherData(document);
        }
        controller_->tableView()->resize(440, 200);
        controller_->tableView()->layoutIfNeeded();
        return *controller_;
    }
    QString line(const char* format) {
        return BarFormat(QString::fromUtf8(format)).line(*controller_);
    }
    QJsonObject waybar() { return QJsonDocument::fromJson(line("waybar").toUtf8()).object(); }
    static QStringList classes(const QJsonObject& object) {
        return object[QLatin1String("class")].toVariant().toStringList();
    }

    Instant now_ = noon;
    ReplacedClock clock_{[this] { return now_; }};
    std::unique_ptr<TodayViewController> controller_;
};

TEST_F(BarFormatTest, FieldsAreWhatTheRowShows) {
    choosePlace(QStringLiteral("Neu\nStadt"));
    show(QVariantMap());
    EXPECT_EQ(line("{temperature}|{wind}|{direction}|{precipitation}|{pressure}|{source}"),
              QStringLiteral("14°C|3 Bft|WSW|0.2 mm|1013.2 hPa|a test"));
    EXPECT_EQ(line(" {place}: {{{symbol}}} "), QStringLiteral("Neu Stadt: {\U0001F325}"))
        << "one line, and doubled braces are braces";
    EXPECT_EQ(line("polybar"), QStringLiteral("\U0001F325 14°C"));
    EXPECT_EQ(line(""), QString());
}

TEST_F(BarFormatTest, HighAndLowAreOfTheDayThatItIsAtThePlace) {
    // The document's days begin with 1 June and have 10, 11, ... and 4 degrees.
    struct Case {
        const char* why;
        const char* zone;
        double hoursAfterNoon;
        QString told;
    };
    for (const Case& c : {
             Case{"the first day", "Europe/Berlin", 1.99, QStringLiteral("10°C|4°C|")},
             Case{"it is not yet tomorrow", "Europe/Berlin", 2.5,
                  QStringLiteral("10°C|4°C|2 h ago")},
             Case{"there it is", "Pacific/Auckland", 2.5, QStringLiteral("11°C|4°C|2 h ago")},
             Case{"an unknown zone is the device's", "Mars/Olympus", 2.5,
                  QStringLiteral("10°C|4°C|2 h ago")},
             Case{"the last day has no high", "Europe/Berlin", 5 * 24.0,
                  QStringLiteral("|4°C|120 h ago")},
             Case{"after the last day", "Europe/Berlin", 6 * 24.0, QStringLiteral("||144 h ago")},
         }) {
        choosePlace(QStringLiteral("Neustadt"), QLatin1String(c.zone));
        now_ = noon;
        auto& controller = show(QVariantMap());
        auto document = controller.lastWeatherData().value();
        QVariantMap lastDay = document.forecast->last().toMap();
        lastDay.insert(QStringLiteral("tx"), -9999);
        document.forecast->last() = lastDay;
        controller.setLastWeatherData(document);
        now_ = noon.addingSeconds(3600.0 * c.hoursAfterNoon);
        EXPECT_EQ(line("{high}|{low}|{age}"), c.told) << c.why;
    }
    UserDefaults::suite(QStringLiteral("group.Zephyrix"))->set(QStringLiteral("temperature"), 1);
    now_ = noon;
    show(QVariantMap());
    EXPECT_EQ(line("{high} {low}"), QStringLiteral("50°F 39°F"));
    show(std::nullopt);
    EXPECT_EQ(line("{high}{low}{age}"), QString());
}

TEST_F(BarFormatTest, WhatIsWrongIsNamed) {
    const auto fault = [](const char* format) {
        try {
            const BarFormat taken(QString::fromUtf8(format));
            return QStringLiteral("taken");
        } catch (const BarFormat::Error& error) {
            return error.text();
        }
    };
    EXPECT_THAT(fault("{symbol} {humidity}").toStdString(),
                ::testing::AllOf(::testing::HasSubstr("{humidity}"),
                                 ::testing::HasSubstr("{temperature}")));
    for (const char* format : {"{", "}", "{symbol", "{symbol}}", "{}", "{{symbol}"})
        EXPECT_NE(fault(format), QStringLiteral("taken")) << format;
}

TEST_F(BarFormatTest, WaybarGetsMarkupAndClasses) {
    choosePlace(QStringLiteral("Fish & Chips"));
    show(QVariantMap{{QStringLiteral("rrr"), 0.05}, {QStringLiteral("symbol"), 2520200}});
    QJsonObject object = waybar();
    EXPECT_EQ(object[QLatin1String("text")], QStringLiteral("\U0001F327 14°C"));
    EXPECT_THAT(object[QLatin1String("tooltip")].toString().toStdString(),
                ::testing::AllOf(::testing::HasSubstr("Fish &amp; Chips"),
                                 ::testing::HasSubstr("&lt;0.1 mm")));
    EXPECT_EQ(classes(object), QStringList({QStringLiteral("rain"), QStringLiteral("night")}));
    EXPECT_FALSE(line("waybar").contains(u'\n'));

    now_ = noon.addingSeconds(7200.0);
    EXPECT_EQ(classes(waybar()).last(), QStringLiteral("old"));
    show(std::nullopt);
    object = waybar();
    EXPECT_EQ(object[QLatin1String("text")], QString());
    EXPECT_EQ(classes(object), QStringList(QStringLiteral("waiting")));
}

TEST_F(BarFormatTest, WithoutAPlaceTheTooltipAsksForOne) {
    show(std::nullopt);
    const QJsonObject object = waybar();
    EXPECT_EQ(classes(object), QStringList(QStringLiteral("no-place")));
    EXPECT_THAT(object[QLatin1String("tooltip")].toString().toStdString(),
                ::testing::HasSubstr("Please open Zephyrix"));
    EXPECT_EQ(line("{symbol} {temperature}"), QString());
}

TEST(BarSymbol, SaysInOneSignWhatTheDigitsMean) {
    forEachLine("host/bar_symbols.tsv", [](const DataLine& line) {
        const qint64 code = line.integer(0);
        const BarSymbol symbol = barSymbol(Number(code));
        EXPECT_EQ(symbol.glyph, line[1]);
        EXPECT_EQ(symbol.kind, line[2]);
        EXPECT_EQ(symbol.isNight, code >= 2000000 && code < 3000000);
    });
}

}  // namespace
}  // namespace zephyrix
