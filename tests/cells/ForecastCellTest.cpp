#include <memory>

#include <QCoreApplication>
#include <QImage>
#include <QSet>
#include <gtest/gtest.h>

#include "Stage.h"
#include "foundation/Clock.h"
#include "foundation/Screen.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double noonOfJuneFirst = 1433152800.0;  // 2015-06-01 10:00 UTC, 12:00 in Berlin

// Stands still until a test moves it.
class ForecastCellTest : public ::testing::Test {
  protected:
    ForecastCell* cellOn(int width, Weather weather = showerInBerlin()) {
        stage = std::make_unique<Stage>(std::move(weather), width, 1.0);
        stage->layOut();
        stage->toggle();
        stage->layOut();
        return stage->forecastCell();
    }
    static void layOut(ForecastCell* cell) {
        cell->setNeedsLayout();
        cell->layoutIfNeeded();
    }
    static QList<ForecastDayView*> columnsOf(const ForecastCell* cell) {
        return cell->container()->findChildren<ForecastDayView*>(QString(),
                                                                 Qt::FindDirectChildrenOnly);
    }
    QStringList keptDates(ForecastCell* cell, const QStringList& dates) {
        QVariantList days;
        for (const QString& date : dates)
            days << QVariantMap{{QStringLiteral("date"), date}};
        cell->setData(days);
        QStringList kept;
        const QVariantList left = cell->data().value_or(QVariantList());
        for (const QVariant& day : left)
            kept << day.toMap().value(QStringLiteral("date")).toString();
        return kept;
    }

    Instant now = Instant::fromSecondsSince1970(noonOfJuneFirst);
    ReplacedClock clock{[this] { return now; }};
    std::unique_ptr<Stage> stage;
};

TEST_F(ForecastCellTest, ColumnsFillTheWidthAsTheScreenAllows) {
    forEachLine("cells/columns.tsv", [this](const DataLine& line) {
        const auto columns = columnsOf(cellOn(static_cast<int>(line.integer(0))));
        const QStringList left = line[1].split(QLatin1Char(' '));
        ASSERT_EQ(columns.size(), left.size());
        for (int index = 0; index < columns.size(); ++index) {
            const ForecastDayView* column = columns.at(index);
            EXPECT_EQ(column->geometry(),
                      QRect(left[index].toInt(), 0, static_cast<int>(line.integer(2)), 104));
            EXPECT_EQ(column->separator()->isHidden(), index == columns.size() - 1);
            EXPECT_EQ(column->tag(), 65280 + index);
            EXPECT_EQ(column->backgroundColor().alpha(), 0);
        }
    });
}

TEST_F(ForecastCellTest, FewerDaysThanColumnsKeepTheScreensWidth) {
    Weather weather = showerInBerlin();
    weather.days = weather.days.mid(0, 2);
    const auto columns = columnsOf(cellOn(440, weather));
    ASSERT_EQ(columns.size(), 2);
    EXPECT_EQ(columns.at(1)->geometry(), QRect(88, 0, 88, 104));
    EXPECT_FALSE(columns.at(1)->separator()->isHidden());
}

TEST_F(ForecastCellTest, ShowsDayAndTemperaturesOrADash) {
    Weather weather = showerInBerlin();
    QVariantMap second = weather.days.at(1).toMap();
    second.remove(QStringLiteral("tx"));
    second[QStringLiteral("symbol")] = QStringLiteral("520200");  // a text is no code
    weather.days[1] = second;
    const auto columns = columnsOf(cellOn(375, weather));
    EXPECT_EQ(columns.at(0)->dayLabel()->text(), QStringLiteral("Mon"));
    EXPECT_EQ(columns.at(0)->tx()->text(), QStringLiteral("14°C"));
    EXPECT_EQ(columns.at(0)->tn()->text(), QStringLiteral("8°C"));
    EXPECT_EQ(columns.at(0)->symbol()->image().size(), QSize(48, 48));
    EXPECT_EQ(columns.at(1)->tx()->text(), QStringLiteral("-"));
    EXPECT_EQ(columns.at(1)->tn()->text(), QStringLiteral("7°C"));
    EXPECT_TRUE(columns.at(1)->symbol()->image().isNull());
    EXPECT_EQ(stage->forecastCell()->accessibleName(),
              QStringLiteral("forecast for Berlin: "
                             "Monday, high 14 degrees Celsius, low 8 degrees Celsius; "
                             "Tuesday, low 7 degrees Celsius; "
                             "Wednesday, high 12 degrees Celsius, low 5 degrees Celsius"));
}

/// How high the figures of the columns are painted, in pixels: of the columns' pictures.
QSet<int> paintedHeights(const QList<ForecastDayView*>& columns) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QSet<int> heights;
    for (const ForecastDayView* column : columns) {
        const QImage picture = column->tx()->grab().toImage();
        const QRgb ground = picture.pixel(0, 0);
        int rows = 0;
        for (int y = 0; y < picture.height(); ++y) {
            bool hasInk = false;
            for (int x = 0; x < picture.width(); ++x)
                hasInk = hasInk || picture.pixel(x, y) != ground;
            rows += hasInk ? 1 : 0;
        }
        heights.insert(rows);
    }
    return heights;
}

TEST_F(ForecastCellTest, TemperaturesOfAllDaysAreEquallyHigh) {
    Weather weather = showerInBerlin();
    const auto setDay = [&](int index, double highest, double lowest) {
        QVariantMap day = weather.days.at(index).toMap();
        day[QStringLiteral("tx")] = highest;
        day[QStringLiteral("tn")] = lowest;
        weather.days[index] = day;
    };
    for (int index = 0; index < 5; ++index)
        setDay(index, 18.0, 10.0);
    const QSet<int> usual = paintedHeights(columnsOf(cellOn(416, weather)));
    ASSERT_EQ(usual.size(), 1);
    setDay(3, -28.0, -38.0);
    ForecastCell* cell = cellOn(416, weather);
    const QSet<int> smaller = paintedHeights(columnsOf(cell));
    ASSERT_EQ(smaller.size(), 1) << "one long text makes all smaller";
    EXPECT_LT(*smaller.begin(), *usual.begin());
    setDay(3, 18.0, 10.0);
    cell->setData(weather.days);
    layOut(cell);
    EXPECT_EQ(paintedHeights(columnsOf(cell)), usual) << "and leaves them when it goes";
}

TEST_F(ForecastCellTest, EachPassFillsTheContainerAnewButNotWithoutDays) {
    ForecastCell* cell = cellOn(375);
    const QPointer<QWidget> stranger = new QWidget(cell->container());
    cell->setData(QVariantList{showerInBerlin().days.first()});
    layOut(cell);
    EXPECT_TRUE(stranger.isNull());
    EXPECT_EQ(columnsOf(cell).size(), 1);
    cell->setData(showerInBerlin().days);
    layOut(cell);
    EXPECT_EQ(columnsOf(cell).size(), 3);
    const ForecastDayView* kept = columnsOf(cell).first();
    for (const bool given : {false, true}) {
        cell->setData(given ? std::make_optional(QVariantList()) : std::nullopt);
        layOut(cell);
        EXPECT_EQ(columnsOf(cell).first(), kept);
    }
    cell->setData(showerInBerlin().days);
    cell->setLocation(std::nullopt);
    layOut(cell);
    EXPECT_EQ(columnsOf(cell).first(), kept);
}

TEST_F(ForecastCellTest, KeepsDaysFromTodayOnInTheDevicesZone) {
    ForecastCell* cell = cellOn(375);
    const QStringList dates =
        QStringLiteral("2015-06-02,2015-05-31,2015-06-01,2015-6-3,2015-06-31,").split(u',');
    const QStringList fromToday = {QStringLiteral("2015-06-02"), QStringLiteral("2015-06-01")};
    // Midnight and the last second of June 1 in Berlin, which is two hours ahead of UTC.
    for (const double hoursFromNoon : {-12.0, 0.0, 11.9999}) {
        now = Instant::fromSecondsSince1970(noonOfJuneFirst + hoursFromNoon * 3600.0);
        EXPECT_EQ(keptDates(cell, dates), fromToday) << hoursFromNoon;
    }
    now = Instant::fromSecondsSince1970(noonOfJuneFirst + 12.0 * 3600.0);
    EXPECT_EQ(keptDates(cell, dates), QStringList{QStringLiteral("2015-06-02")});
    const ScopedEnvironment elsewhere{{"TZ", "Pacific/Honolulu"}};
    EXPECT_EQ(keptDates(cell, dates), fromToday);
}

// On the day of 25 hours midnight is more than 24 hours ago, and it is still today.
TEST_F(ForecastCellTest, CountsCalendarDaysAcrossAChangeOfTheClock) {
    ForecastCell* cell = cellOn(375);
    now = Instant::fromSecondsSince1970(1445813940.0);  // 2015-10-25 23:59 in Berlin
    EXPECT_EQ(keptDates(cell, {QStringLiteral("2015-10-24"), QStringLiteral("2015-10-25")}),
              QStringList{QStringLiteral("2015-10-25")});
}

// The filter runs when the days are given, not when they are laid out.
TEST_F(ForecastCellTest, ADayThatEndsAfterwardsStaysUntilTheDaysAreGivenAgain) {
    const ForecastCell* cell = cellOn(375);
    now = now.addingSeconds(24 * 3600.0);
    stage->layOut();
    EXPECT_EQ(columnsOf(cell).first()->dayLabel()->text(), QStringLiteral("Mon"));
    stage->tableView()->reloadData();
    stage->layOut();
    EXPECT_EQ(columnsOf(stage->forecastCell()).first()->dayLabel()->text(), QStringLiteral("Tue"));
}

TEST(ForecastCellDeathTest, StopsWithoutSettings) {
    EXPECT_DEATH(
        {
            const ReplacedClock clock(
                [] { return Instant::fromSecondsSince1970(noonOfJuneFirst); });
            ForecastCell cell;
            cell.awakeFromNib();
            cell.setLocation(LocationResult(showerInBerlin().place));
            cell.setData(showerInBerlin().days);
            cell.layoutIfNeeded();
        },
        "a forecast row has no settings");
}

}  // namespace
}  // namespace zephyrix
