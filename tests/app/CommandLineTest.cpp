// The real program, run as a person or a script runs it.
#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <gtest/gtest.h>

#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "places/CoordinateUid.h"
#include "support/DataLines.h"
#include "support/Files.h"
#include "support/Programs.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// The program with a settings folder of its own.
class CommandLine : public ::testing::Test {
  protected:
    CommandLine() { qputenv("XDG_CONFIG_HOME", folder_.toUtf8()); }

    static Outcome run(const QString& line) { return runOurs(QStringLiteral("zephyrix ") + line); }
    static Outcome run(const char* line) { return run(QString::fromUtf8(line)); }

    static QJsonObject jsonOf(const char* line) { return run(line).json(); }

    [[nodiscard]] QByteArray storeBytes() const {
        return contentOf(folder_ + QStringLiteral("/zephyrix/group.Zephyrix.plist"));
    }

    static QVariant stored(const QString& key) {
        return UserDefaults::suite(QStringLiteral("group.Zephyrix"))->object(key);
    }

    QString folder_ = freshFolder();
};

TEST_F(CommandLine, APlaceThatIsSetIsWhatThePanelReads) {
    const Outcome set =
        run("place set --uid 41 --name \"Saint-Denis\" --lat -20.88 --lon=55.45 "
            "--zone Indian/Reunion --country-name \"La Réunion\"");
    ASSERT_EQ(set.exitCode, 0) << set.err.toStdString();
    const LocationResult place(stored(QStringLiteral("location")).toMap());
    EXPECT_TRUE(place.checkValidity());
    EXPECT_EQ(place.uid()->kind(), Number::Kind::Integer);
    EXPECT_EQ(place.latitude(), Number(-20.88));
    EXPECT_EQ(place.objTimeZone().id(), "Indian/Reunion");
    EXPECT_EQ(place.countryName(), QStringLiteral("La Réunion"));
    EXPECT_EQ(jsonOf("place show --json"),
              QJsonObject::fromVariantMap(stored(QStringLiteral("location")).toMap()));
    EXPECT_TRUE(run("place show").out.startsWith("Saint-Denis, La Réunion\n"));
}

TEST_F(CommandLine, TheDefaultPlaceIsBerlinAndKeepsTheUnits) {
    ASSERT_EQ(run("units wind km/h").exitCode, 0);
    ASSERT_EQ(run("place default").exitCode, 0);
    EXPECT_EQ(jsonOf("place show --json").value(QStringLiteral("uid")), 18228265);
    EXPECT_EQ(stored(QStringLiteral("wind")), QVariant(2LL));
}

TEST_F(CommandLine, APlaceIsFoundWithoutAccentsAndSetByItsUid) {
    const Outcome found = run("place search tromso");
    ASSERT_EQ(found.exitCode, 0);
    ASSERT_TRUE(found.out.startsWith("3133895   Tromsø, Troms og Finnmark, Norway\n"));
    ASSERT_EQ(run("place set 3133895").exitCode, 0);
    EXPECT_EQ(LocationResult(stored(QStringLiteral("location")).toMap()).objTimeZone().id(),
              "Europe/Oslo");
    EXPECT_TRUE(run("place search --json paris texas").out.contains("America/Chicago"));
    const Outcome none = run("place search \"xqzzy; DROP TABLE place\"");
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_TRUE(none.err.contains("place set --lat")) << none.err.toStdString();
}

TEST_F(CommandLine, APlaceInNoListIsItsCoordinatesAndHasTheZoneOfItsNeighbourhood) {
    ASSERT_EQ(run("place set --lat -54.7 --lon=-68.2 --name \"My hut\"").exitCode, 0);
    const LocationResult hut(stored(QStringLiteral("location")).toMap());
    EXPECT_EQ(hut.objTimeZone().id(), "America/Argentina/Ushuaia");
    const auto where = coordinateOfUid(hut.uid()->integerValue());
    ASSERT_TRUE(where);
    EXPECT_NEAR(where->latitude, -54.7, 1e-4);
    EXPECT_NEAR(where->longitude, -68.2, 1e-4);
}

TEST_F(CommandLine, UnitsAreTakenAsPeopleWriteThem) {
    forEachLine("app/unit_names.tsv", [](const DataLine& line) {
        EXPECT_EQ(run(line[0]).exitCode, 0);
        EXPECT_EQ(stored(line[1]), QVariant(line.integer(2)));
    });
    const QJsonObject wind = jsonOf("units --json").value(QStringLiteral("wind")).toObject();
    EXPECT_EQ(wind.value(QStringLiteral("unit")), QStringLiteral("km/h"));
}

TEST_F(CommandLine, BadInputIsToldAndLeavesTheStoreAsItWas) {
    ASSERT_EQ(run("place default").exitCode, 0);
    const QByteArray before = storeBytes();
    ASSERT_FALSE(before.isEmpty());
    const auto expectRefused = [&](const QString& line, const QByteArray& told) {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_TRUE(outcome.err.contains(told)) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.isEmpty());
        EXPECT_EQ(storeBytes(), before);
    };
    expectRefused({}, "which command");
    forEachLine("app/bad_lines.tsv",
                [&](const DataLine& line) { expectRefused(line[0], line.utf8(1)); });
}

TEST_F(CommandLine, TheSourceOfTheWeatherIsChosen) {
    EXPECT_EQ(run("source").out, "source         demo\n");
    EXPECT_EQ(run("source met-norway --contact me@example.org").exitCode, 0);
    EXPECT_EQ(stored(QStringLiteral("weatherSource")), QStringLiteral("met-norway"));
    const Outcome automatic = run("source auto");  // the contact stays
    EXPECT_EQ(automatic.out, "source         auto\ncontact        me@example.org\n");
    EXPECT_TRUE(run("source met-norway").out.contains("NLOD"));
}

TEST_F(CommandLine, WhatCannotBeDoneIsAFailure) {
    EXPECT_EQ(run("place show").exitCode, 1);
    EXPECT_EQ(run("zephyrix://widget").exitCode, 1);
    const QString settings = folder_ + QStringLiteral("/zephyrix");
    ASSERT_TRUE(QDir(settings).removeRecursively());
    QFile inTheWay(settings);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const Outcome outcome = run("place default");
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.err.contains("cannot be opened"));
}

TEST_F(CommandLine, TheAddressOfThePanelShowsPlaceAndUnits) {
    ASSERT_EQ(run("place default").exitCode, 0);
    for (const char* address : {"zephyrix://widget", "zephyrix://widget/"}) {
        const Outcome outcome = run(address);
        EXPECT_EQ(outcome.exitCode, 0) << address;
        EXPECT_TRUE(outcome.out.contains("Berlin") && outcome.out.contains("hPa")) << address;
    }
}

}  // namespace
}  // namespace zephyrix
