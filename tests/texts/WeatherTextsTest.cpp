#include <memory>

#include <QDir>
#include <gtest/gtest.h>

#include "foundation/Bundle.h"
#include "foundation/NamedException.h"
#include "meteo/MeteoDB.h"
#include "meteo/MeteoMapping.h"
#include "model/LocationResult.h"
#include "support/DataLines.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr int missing = -9999;
const QStringList languages = QStringLiteral("de en pl nl fr es sv it ru").split(QLatin1Char(' '));

std::optional<QString> text(int n, int ww, const QString& language, bool daylight = true) {
    return MeteoMapping::stringForN(Number(n), Number(ww), language, daylight);
}

LocationResult placeAt(double latitude, double longitude, const QString& zone) {
    LocationResult place;
    place.setLatitude(Number(latitude));
    place.setLongitude(Number(longitude));
    place.setTimezone(zone);
    return place;
}

TEST(WeatherTexts, EveryPairOfCodesHasASentenceInEverySet) {
    qsizetype longest = 0;
    for (const QString& language : languages) {
        for (const bool daylight : {true, false}) {
            for (int n = -1; n <= 9; ++n) {
                for (int ww = -1; ww <= 99; ++ww) {
                    const auto found =
                        text(n < 0 ? missing : n, ww < 0 ? missing : ww, language, daylight);
                    ASSERT_EQ(found.has_value(), n >= 0 || ww >= 0)
                        << language.toStdString() << " n " << n << " ww " << ww;
                    if (found) {
                        ASSERT_FALSE(found->isEmpty());
                        longest = qMax(longest, found->size());
                    }
                }
            }
        }
    }
    std::cout << "longest sentence: " << longest << " letters\n";
    EXPECT_LE(longest, 40);
}

TEST(WeatherTexts, EachLanguageSpeaksForItselfByDayAndByNight) {
    forEachLine("texts/clear_skies.tsv", [](const DataLine& line) {  // in turn on one statement
        EXPECT_EQ(text(0, missing, line[0], true), line[1]);
        EXPECT_EQ(text(0, missing, line[0], false), line[2]);
    });
}

TEST(WeatherTexts, TheHeavierCodeSpeaks) {
    forEachLine("texts/sentences.tsv", [](const DataLine& line) {
        EXPECT_EQ(text(static_cast<int>(line.integer(0)), static_cast<int>(line.integer(1)),
                       QStringLiteral("en")),
                  line[2]);
    });
    EXPECT_EQ(MeteoMapping::stringForN({}, {}, QStringLiteral("en"), true), QStringLiteral("sunny"))
        << "an absent number counts as 0";
}

TEST(WeatherTexts, DayAndNightComeFromThePlaceAndItsZone) {
    const auto place = placeAt(52.53, 13.38, QStringLiteral("Europe/Berlin"));
    const auto noon = Instant::fromSecondsSince1970(1433152800);  // 2015-06-01 12:00 there
    const auto spoken = [&](Instant date) {
        return MeteoMapping::stringForN(Number(0), Number(0), QStringLiteral("en"), date, place);
    };
    EXPECT_EQ(spoken(noon), QStringLiteral("sunny"));
    EXPECT_EQ(spoken(noon.addingSeconds(12 * 3600)), QStringLiteral("clear"));
}

TEST(WeatherTexts, AreFoundAgainAfterTheStatementWasFinalized) {
    EXPECT_EQ(text(8, 0, QStringLiteral("it")), QStringLiteral("coperto"));
    MeteoMapping::finalizeStatements();
    MeteoMapping::finalizeStatements();
    EXPECT_EQ(text(8, 0, QStringLiteral("it")), QStringLiteral("coperto"));
}

TEST(WeatherTexts, CapitalizeFirstUpperCasesOneLetter) {
    EXPECT_EQ(MeteoMapping::capitalizeFirst(QStringLiteral("light rain")),
              QStringLiteral("Light rain"));
    EXPECT_EQ(MeteoMapping::capitalizeFirst(QStringLiteral("ясно")), QStringLiteral("Ясно"));
    EXPECT_EQ(MeteoMapping::capitalizeFirst(QStringLiteral("é")), QStringLiteral("É"));
    EXPECT_EQ(MeteoMapping::capitalizeFirst(QStringLiteral("i")), QStringLiteral("I"));
    EXPECT_FALSE(MeteoMapping::capitalizeFirst(QString()).has_value());
}

/// A stand-in for the database, in memory, while it lives.
class OtherDatabase {
  public:
    explicit OtherDatabase(const char* sql) {
        MeteoMapping::finalizeStatements();
        sqlite3_open(":memory:", &connection_);
        EXPECT_EQ(sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr), SQLITE_OK);
        MeteoDB::sharedManager().setDbConnection(connection_);
    }
    ~OtherDatabase() {
        MeteoMapping::finalizeStatements();
        MeteoDB::sharedManager().setDbConnection(before_);
        sqlite3_close(connection_);
    }
    OtherDatabase(const OtherDatabase&) = delete;
    OtherDatabase& operator=(const OtherDatabase&) = delete;

  private:
    sqlite3* before_ = MeteoDB::sharedManager().dbConnection();
    sqlite3* connection_ = nullptr;
};

constexpr const char* emptyTable = "CREATE TABLE t_list_mapping (id_map, n, ww, words, more);";

TEST(WeatherTextsInAnotherDatabase, ANullTextIsEmptyAndNoRowIsNothing) {
    const OtherDatabase database(
        "CREATE TABLE t_list_mapping (id_map, n, ww, words, more);"
        "INSERT INTO t_list_mapping VALUES (2987, 1, 2, NULL, 'further');");
    const auto found = text(1, 2, QStringLiteral("ru"), false);
    ASSERT_TRUE(found.has_value());
    EXPECT_TRUE(found->isEmpty());
    EXPECT_FALSE(text(1, 2, QStringLiteral("ru"), true).has_value());
}

TEST(WeatherTextsInAnotherDatabase, AMissingTableIsAskedAgainUntilItIsThere) {
    const OtherDatabase database("");
    EXPECT_FALSE(text(0, 0, QStringLiteral("en")).has_value());
    sqlite3* const connection = MeteoDB::sharedManager().dbConnection();
    sqlite3_exec(connection, emptyTable, nullptr, nullptr, nullptr);
    sqlite3_exec(connection, "INSERT INTO t_list_mapping VALUES (2910, 0, 0, 'here', 1);", nullptr,
                 nullptr, nullptr);
    EXPECT_EQ(text(0, 0, QStringLiteral("en")), QStringLiteral("here"));
}

TEST(MeteoDBDeathTest, IsNeverToBeDestroyed) {
    EXPECT_DEATH(std::make_unique<MeteoDB>().reset(), "");
}

/// Asks for a text on a polar day with a database that cannot be opened; ends with 0 when the
/// reason came out and the database was left alone (the log would tell of the failed opening).
[[noreturn]] void lookUpOnAPolarDay(const QString& dataFolder) {
    Bundle::main().setDataDirectory(dataFolder);
    const auto place = placeAt(78.22, 15.65, QStringLiteral("Arctic/Longyearbyen"));
    try {
        (void)MeteoMapping::stringForN(Number(0), Number(0), QStringLiteral("en"),
                                       Instant::fromSecondsSince1970(1433152800), place);
    } catch (const NamedException& phenomenon) {
        std::_Exit(phenomenon.name() == QLatin1String("NullPhenomenon") &&
                           phenomenon.reason() == QLatin1String("sun")
                       ? 0
                       : 2);
    }
    std::_Exit(1);
}

TEST(MeteoDBDeathTest, APolarDayIsToldBeforeTheDatabaseIsTouched) {
    const QString folder = freshFolder();
    QDir(folder).mkdir(QStringLiteral("meteoDB.sqlite"));
    EXPECT_EXIT(lookUpOnAPolarDay(folder), ::testing::ExitedWithCode(0), "^$");
}

}  // namespace
}  // namespace zephyrix
