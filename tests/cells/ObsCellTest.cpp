#include <memory>

#include <gtest/gtest.h>

#include "Stage.h"
#include "foundation/Clock.h"
#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class ObsCellTest : public ::testing::Test {
  protected:
    ObsCell* cellOf(Weather weather, int width = 375, double scale = 1.0) {
        stage = std::make_unique<Stage>(std::move(weather), width, scale);
        stage->layOut();
        return stage->obsCell();
    }
    ObsCell* cellWith(const char* key, const QVariant& value) {
        Weather weather = showerInBerlin();
        weather.observation[QString::fromLatin1(key)] = value;
        return cellOf(weather);
    }
    static void layOut(ObsCell* cell) {
        cell->setNeedsLayout();
        cell->layoutIfNeeded();
    }

    Instant now = Instant::fromSecondsSince1970(1433154000.0);  // 20 minutes after the observation
    ReplacedClock clock{[this] { return now; }};
    std::unique_ptr<Stage> stage;
};

TEST_F(ObsCellTest, FillsEveryView) {
    const ObsCell* cell = cellOf(showerInBerlin(), 375, 2.0);
    EXPECT_EQ(cell->titleLabel()->text(), QStringLiteral("Berlin"));
    EXPECT_EQ(cell->dateLabel()->text(), QStringLiteral("12:00\u202fPM"));
    EXPECT_EQ(cell->detailLabel2()->text(), QStringLiteral("Light rain shower"));
    EXPECT_EQ(cell->rrrhLabel()->text(), QStringLiteral("1h"));
    EXPECT_EQ(cell->windContainer()->direction()->integerValue(), 225);
    EXPECT_EQ(cell->windContainer()->windPfeil()->rotation(), 225.0);
    EXPECT_EQ(cell->symbol()->image().size(), QSize(160, 160));  // 80 points at scale 2
    EXPECT_EQ(cell->separatorInset(), QMarginsF(47, 0, 0, 0));
    EXPECT_EQ(cell->height(), 110);
}

TEST_F(ObsCellTest, ShowsEachValueInTheChosenUnit) {
    ObsCell* cell = cellOf(showerInBerlin());
    forEachLine("cells/units.tsv", [&](const DataLine& line) {
        int column = 0;
        for (const char* unit : {"temperature", "wind", "precipitation", "pressure"})
            stage->defaults().set(QLatin1String(unit), line.integer(column++));
        layOut(cell);
        const QStringList shown = {cell->detailLabel1()->text(),
                                   cell->windContainer()->windSpeedLabel()->text(),
                                   cell->windContainer()->windSpeedUnitsLabel()->text(),
                                   cell->rrr()->text(),
                                   cell->rrrUnits()->text(),
                                   cell->ppp()->text(),
                                   cell->pppUnits()->text()};
        EXPECT_EQ(shown.join(u' '), line[4]);
    });
}

// 23:30 UTC is 01:30 two hours further east.
TEST_F(ObsCellTest, TimeIsThatOfThePlace) {
    Weather weather = showerInBerlin();
    weather.observation[QStringLiteral("date")] = 1433201400;
    weather.place[QStringLiteral("timezone")] = QStringLiteral("Africa/Cairo");
    EXPECT_EQ(cellOf(weather)->dateLabel()->text(), QStringLiteral("1:30\u202fAM"));
    weather.place[QStringLiteral("timezone")] = QStringLiteral("Asia/Tokyo");
    EXPECT_EQ(cellOf(weather)->dateLabel()->text(), QStringLiteral("8:30\u202fAM"));
}

TEST_F(ObsCellTest, MissingNumbersAreDashesAndThePeriodStays) {
    Weather weather = showerInBerlin();
    ObsCell* cell = cellOf(weather);
    for (const char* key : {"tt", "td", "ff", "rrr", "rrrh", "n", "ww", "ppp"})
        weather.observation[QString::fromLatin1(key)] = -9999;
    cell->setData(Obs(weather.observation));
    layOut(cell);
    for (const Label* label :
         {cell->detailLabel1(), cell->windContainer()->windSpeedLabel(), cell->rrr(), cell->ppp()})
        EXPECT_EQ(label->text(), QStringLiteral("-"));
    EXPECT_EQ(cell->detailLabel2()->text(), QString());
    EXPECT_EQ(cell->rrrhLabel()->text(), QStringLiteral("1h"));
    EXPECT_EQ(cell->accessibleName(), QStringLiteral("Berlin, observed at 12:00\u202fPM"));
}

TEST_F(ObsCellTest, CalmIsShownAsZero) {
    EXPECT_EQ(cellWith("ff", 0)->windContainer()->windSpeedLabel()->text(), QStringLiteral("0"));
    EXPECT_EQ(cellWith("ff", -9998)->windContainer()->windSpeedLabel()->text(),
              QStringLiteral("-18516"));  // only what lies below -9998 is missing
}

TEST_F(ObsCellTest, WithoutARecordEverythingStays) {
    ObsCell* cell = cellOf(showerInBerlin());
    cell->setData(std::nullopt);
    layOut(cell);
    EXPECT_EQ(cell->titleLabel()->text(), QStringLiteral("Berlin"));
    EXPECT_EQ(cell->detailLabel1()->text(), QStringLiteral("14°C"));
}

// At 70 degrees north there is no sunrise to compare with: midsummer is day, midwinter night.
TEST_F(ObsCellTest, PolarDayAndNightAreShownInFull) {
    Weather weather = showerInBerlin();
    weather.place[QStringLiteral("latitude")] = 69.65;
    weather.place[QStringLiteral("longitude")] = 18.96;
    weather.place[QStringLiteral("timezone")] = QStringLiteral("Europe/Oslo");
    weather.observation[QStringLiteral("n")] = 0;
    weather.observation[QStringLiteral("ww")] = 0;
    const auto clearSky = [](bool daylight) {
        return *MeteoMapping::capitalizeFirst(
            *MeteoMapping::stringForN(Number(0), Number(0), QStringLiteral("en"), daylight));
    };
    ASSERT_NE(clearSky(true), clearSky(false));
    weather.observation[QStringLiteral("date")] = 1434924000;  // 2015-06-22 00:00 in Oslo
    EXPECT_EQ(cellOf(weather)->detailLabel2()->text(), clearSky(true));
    weather.observation[QStringLiteral("date")] = 1450695600;  // 2015-12-21 12:00 in Oslo
    EXPECT_EQ(cellOf(weather)->detailLabel2()->text(), clearSky(false));
}

TEST_F(ObsCellTest, SaysOneSentence) {
    EXPECT_EQ(cellOf(showerInBerlin())->accessibleName(),
              QStringLiteral("Berlin, 14 degrees Celsius, Light rain shower, "
                             "wind south-west 19 kilometres per hour, "
                             "precipitation 0.4 millimetres in the last hour, "
                             "pressure 1013.2 hectopascals, observed at 12:00\u202fPM"));
}

TEST_F(ObsCellTest, SaysUnitsInTheFormOfTheirNumber) {
    Weather weather = showerInBerlin();
    weather.observation[QStringLiteral("tt")] = -1;
    weather.observation[QStringLiteral("rrr")] = 1.0;
    weather.observation[QStringLiteral("rrrh")] = 3;
    ObsCell* cell = cellOf(weather);
    stage->defaults().set(QStringLiteral("wind"), 1);
    Obs record(weather.observation);
    record.ff = Number(1);
    cell->setData(record);
    layOut(cell);
    EXPECT_EQ(cell->accessibleName(),
              QStringLiteral("Berlin, -1 degree Celsius, Light rain shower, wind south-west 1 "
                             "knot, precipitation 1.0 millimetres in the last 3 hours, "
                             "pressure 1013.2 hectopascals, observed at 12:00\u202fPM"));
}

TEST_F(ObsCellTest, SaysFromTwoHoursOnHowOldItIs) {
    const ObsCell* cell = cellOf(showerInBerlin());
    const auto* age = cell->findChild<Label*>(QStringLiteral("ageLabel"));
    EXPECT_TRUE(age->isHidden());
    const Instant observed = Instant::fromSecondsSince1970(1433152800.0);
    now = observed.addingSeconds(7199.0);
    layOut(stage->obsCell());
    EXPECT_TRUE(age->isHidden());
    now = observed.addingSeconds(7200.0);
    layOut(stage->obsCell());
    EXPECT_FALSE(age->isHidden());
    EXPECT_EQ(age->text(), QStringLiteral("2 h ago"));
    EXPECT_TRUE(cell->accessibleName().endsWith(QLatin1String(", 2 h ago")));
}

TEST(ObsCellDeathTest, StopsRatherThanShowAPartialRow) {
    const auto configure = [](const char* removed, bool withDefaults, bool withSymbols) {
        Stage stage(showerInBerlin(), 375, 1.0);
        stage.layOut();
        ObsCell* cell = stage.obsCell();
        QVariantMap observation = showerInBerlin().observation;
        observation.remove(QString::fromLatin1(removed));
        cell->setData(Obs(observation));
        if (!withDefaults)
            cell->setDefaults(nullptr);
        if (!withSymbols)
            cell->setCs(nullptr);
        cell->setNeedsLayout();
        cell->layoutIfNeeded();
    };
    EXPECT_DEATH(configure("tt", true, true), "an observation without \"tt\" reached its row");
    EXPECT_DEATH(configure("ff", true, true), "an observation without \"ff\"");
    EXPECT_DEATH(configure("td", true, true), "an observation without \"td\"");
    EXPECT_DEATH(configure("", false, true), "an observation row has no settings");
    EXPECT_DEATH(configure("", true, false), "an observation row has no symbol renderer");
    EXPECT_DEATH(ObsCell().setLocation(std::nullopt), "an observation row was given no place");
}

}  // namespace
}  // namespace zephyrix
