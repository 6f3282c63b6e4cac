// The real program, run as a person or a script runs it.
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>

#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "places/CoordinateUid.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

struct Outcome {
    int exitCode;
    QByteArray out;
    QByteArray err;
};

/// The program with a settings folder of its own.
class CommandLine : public ::testing::Test {
  protected:
    CommandLine() : folder_(testing::freshFolder()) {
        qputenv("XDG_CONFIG_HOME", folder_.toUtf8());
    }

    static Outcome run(const char* line) {
        QProcess process;
        process.start(QStringLiteral(PROGRAM_DIR "/zephyrix"),
                      QProcess::splitCommand(QString::fromUtf8(line)));
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << line;
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    static QJsonObject jsonOf(const char* line) {
        return QJsonDocument::fromJson(run(line).out).object();
    }

    [[nodiscard]] QByteArray storeBytes() const {
        QFile file(folder_ + QStringLiteral("/zephyrix/group.Zephyrix.plist"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QVariant stored(const char* key) {
        return UserDefaults::suite(QStringLiteral("group.Zephyrix"))
            ->object(QString::fromLatin1(key));
    }

    QString folder_;
};

TEST_F(CommandLine, APlaceThatIsSetIsWhatThePanelReads) {
    const Outcome set =
        run("place set --uid 41 --name \"Saint-Denis\" --lat -20.88 --lon=55.45 "
            "--zone Indian/Reunion --country-name \"La Réunion\"");
    ASSERT_EQ(set.exitCode, 0) << set.err.toStdString();
    const LocationResult place(stored("location").toMap());
    EXPECT_TRUE(place.checkValidity());
    EXPECT_EQ(place.uid()->kind(), Number::Kind::Integer);
    EXPECT_EQ(place.latitude(), Number(-20.88));
    EXPECT_EQ(place.objTimeZone().id(), "Indian/Reunion");
    EXPECT_EQ(place.countryName(), QStringLiteral("La Réunion"));
    EXPECT_EQ(jsonOf("place show --json"), QJsonObject::fromVariantMap(stored("location").toMap()));
    EXPECT_TRUE(run("place show").out.startsWith("Saint-Denis, La Réunion\n"));
}

TEST_F(CommandLine, TheDefaultPlaceIsBerlinAndKeepsTheUnits) {
    ASSERT_EQ(run("units wind km/h").exitCode, 0);
    ASSERT_EQ(run("place default").exitCode, 0);
    EXPECT_EQ(jsonOf("place show --json").value(QStringLiteral("uid")), 18228265);
    EXPECT_EQ(stored("wind"), QVariant(2LL));
}

TEST_F(CommandLine, APlaceIsFoundWithoutAccentsAndSetByItsUid) {
    const Outcome found = run("place search tromso");
    ASSERT_EQ(found.exitCode, 0);
    ASSERT_TRUE(found.out.startsWith("3133895   Tromsø, Troms og Finnmark, Norway\n"));
    ASSERT_EQ(run("place set 3133895").exitCode, 0);
    EXPECT_EQ(LocationResult(stored("location").toMap()).objTimeZone().id(), "Europe/Oslo");
    EXPECT_TRUE(run("place search --json paris texas").out.contains("America/Chicago"));
    const Outcome none = run("place search \"xqzzy; DROP TABLE place\"");
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_TRUE(none.err.contains("place set --lat")) << none.err.toStdString();
}

TEST_F(CommandLine, APlaceInNoListIsItsCoordinatesAndHasTheZoneOfItsNeighbourhood) {
    ASSERT_EQ(run("place set --lat -54.7 --lon=-68.2 --name \"My hut\"").exitCode, 0);
    const LocationResult hut(stored("location").toMap());
    EXPECT_EQ(hut.objTimeZone().id(), "America/Argentina/Ushuaia");
    const auto where = coordinateOfUid(hut.uid()->integerValue());
    ASSERT_TRUE(where);
    EXPECT_NEAR(where->latitude, -54.7, 1e-4);
    EXPECT_NEAR(where->longitude, -68.2, 1e-4);
}

TEST_F(CommandLine, UnitsAreTakenAsPeopleWriteThem) {
    struct Case {
        const char* line;
        const char* key;
        int code;
    };
    for (const Case& c :
         {Case{"units temperature °F", "temperature", 1},
          Case{"units temperature CELSIUS", "temperature", 0}, Case{"units wind m/s", "wind", 3},
          Case{"units wind kmh", "wind", 2}, Case{"units pressure inHg", "pressure", 1},
          Case{"units precipitation inch", "precipitation", 1}}) {
        EXPECT_EQ(run(c.line).exitCode, 0) << c.line;
        EXPECT_EQ(stored(c.key), QVariant(c.code)) << c.line;
    }
    const QJsonObject wind = jsonOf("units --json").value(QStringLiteral("wind")).toObject();
    EXPECT_EQ(wind.value(QStringLiteral("unit")), QStringLiteral("km/h"));
}

TEST_F(CommandLine, BadInputIsToldAndLeavesTheStoreAsItWas) {
    ASSERT_EQ(run("place default").exitCode, 0);
    const QByteArray before = storeBytes();
    ASSERT_FALSE(before.isEmpty());
    struct Case {
        const char* line;
        const char* told;  // part of the message
    };
    for (const Case& c : {
             Case{"", "which command"},
             Case{"palce show", "palce"},
             Case{"place", "search, set, default or show"},
             Case{"place default now", "search, set, default or show"},
             Case{"place set --uid 7 --lat 1 --lon 2 --zone UTC", "--name is missing"},
             Case{"place set 7", "no place 7"},
             Case{"place set Tromso", "Tromso"},
             Case{"place set", "is missing"},
             Case{"place search", "takes a name"},
             Case{"place set --uid 7 --name A --lat 1 --lon 2 --zone Europe/Atlantis", "Atlantis"},
             Case{"place set --uid 7 --name A --lat 90.01 --lon 2 --zone UTC", "90.01"},
             Case{"place set --uid 7 --name A --lat nan --lon 2 --zone UTC", "nan"},
             Case{"place set --uid 7 --name A --lat 5 --lon -181 --zone UTC", "-181"},
             Case{"place set --uid 7 --name A --lat 52,5 --lon 13 --zone UTC", "52,5"},
             Case{"place set --uid 0 --name A --lat 1 --lon 2 --zone UTC", "no whole number"},
             Case{"place set --uid 9223372036854775808 --name A --lat 1 --lon 2 --zone UTC", "uid"},
             Case{"place set --uid 7 --name \" \" --lat 1 --lon 2 --zone UTC", "--name"},
             Case{"place set --uid 7 --name A --lat 0 --lon 0 --zone UTC", "counts as none"},
             Case{"place set --uid 7 --name A --lat 1 --lon 2 --zone UTC more", "more"},
             Case{"place set --uid 7 --name A --lat 1 --lon 2 --zone UTC --height 3", "height"},
             Case{"units wind", "km/h"},
             Case{"units wind furlongs", "furlongs"},
             Case{"units altitude ft", "altitude"},  // no setting of the panel
             Case{"source sunny", "auto, open-meteo, met-norway, bright-sky, demo"},
             Case{"source met-norway", "--contact"},
             Case{"source auto --contact me", "\"me\""},
             Case{"source auto --contact", "one source"},
             Case{"zephyrix://place", "zephyrix://place"},
             Case{"http://widget", "http://widget"},
             Case{"zephyrix://WIDGET", "zephyrix://WIDGET"},
             Case{"zephyrix://widget?place=7", "no address"},
             Case{"zephyrix://widget#", "no address"},
             Case{"zephyrix://user@widget", "no address"},
             Case{"zephyrix://widget//", "no address"},
             Case{"zephyrix://widget/../set", "no address"},
             Case{"zephyrix://%77idget", "no address"},
             Case{"zephyrix:widget", "no address"},
         }) {
        const Outcome outcome = run(c.line);
        EXPECT_EQ(outcome.exitCode, 2) << c.line;
        EXPECT_TRUE(outcome.err.contains(c.told)) << c.line << ": " << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.isEmpty()) << c.line;
        EXPECT_EQ(storeBytes(), before) << c.line;
    }
}

TEST_F(CommandLine, TheSourceOfTheWeatherIsChosen) {
    EXPECT_EQ(run("source").out, "source         demo\n");
    EXPECT_EQ(run("source met-norway --contact me@example.org").exitCode, 0);
    EXPECT_EQ(stored("weatherSource"), QStringLiteral("met-norway"));
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
