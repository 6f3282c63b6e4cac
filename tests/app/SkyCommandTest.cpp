
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "foundation/Clock.h"
#include "support/ChosenPlace.h"
#include "support/DataLines.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;

struct Answer {
    ExitCode exitCode;
    QString out;
    QString err;

    [[nodiscard]] QJsonObject json() const {
        return QJsonDocument::fromJson(out.toUtf8()).object();
    }
};

Answer sky(const QString& arguments) {
    Answer answer{};
    QTextStream out(&answer.out);
    QTextStream err(&answer.err);
    const QString line = QStringLiteral("sky ") + arguments;
    answer.exitCode = runCommandLine(line.split(QLatin1Char(' '), Qt::SkipEmptyParts), out, err);
    return answer;
}

double secondsOf(const QJsonValue& isoTime) {
    return Instant::fromDateTime(QDateTime::fromString(isoTime.toString(), Qt::ISODate))
        .secondsSince1970();
}

class SkyCommand : public ::testing::Test {
  protected:
    SkyCommand() { qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8()); }
};

TEST_F(SkyCommand, ShowsAnAlmanacsDay) {
    // Sunrise 07:17:23 and sunset 15:02:36 UTC; first quarter was two days before.
    const QJsonObject json =
        sky(QStringLiteral("--json --date 2023-01-01 --place 52.53,13.38,Europe/Berlin")).json();
    const QJsonObject sun = json.value(QStringLiteral("sun")).toObject();
    EXPECT_NEAR(secondsOf(sun.value(QStringLiteral("rise"))), 1672557443.0, 90.0);
    EXPECT_NEAR(secondsOf(sun.value(QStringLiteral("set"))), 1672585356.0, 90.0);
    EXPECT_NEAR(json.value(QStringLiteral("dayLengthSeconds")).toDouble(), 27913.0, 120.0);
    EXPECT_EQ(json.value(QStringLiteral("moon")).toObject().value(QStringLiteral("name")),
              QStringLiteral("waxing gibbous"));
}

TEST_F(SkyCommand, NamesTheMoonOfKnownDays) {
    forEachLine("app/moon_names.tsv", [](const DataLine& line) {
        const QJsonObject moon =
            sky(QStringLiteral("--json --date %1 --place 51,0,UTC").arg(line[0]))
                .json()
                .value(QStringLiteral("moon"))
                .toObject();
        EXPECT_EQ(moon.value(QStringLiteral("name")), line[1]);
        EXPECT_EQ(moon.value(QStringLiteral("image")), line.integer(2));
    });
}

TEST_F(SkyCommand, SaysPolarDayAndNightInWords) {
    const QString tromso = QStringLiteral("--place 69.65,18.96,Europe/Oslo --date ");
    const QString summer = sky(tromso + QStringLiteral("2024-06-21")).out;
    EXPECT_THAT(summer.toStdString(), HasSubstr("polar day: the sun does not set"));
    EXPECT_THAT(summer.toStdString(), HasSubstr("day length             24 h 0 min"));
    const QString winter = sky(tromso + QStringLiteral("2024-12-21")).out;
    EXPECT_THAT(winter.toStdString(), HasSubstr("polar night: the sun does not rise"));
    EXPECT_THAT(winter.toStdString(), HasSubstr("day length             0 h 0 min"));
    const QJsonObject json = sky(tromso + QStringLiteral("2024-06-21 --json")).json();
    const QJsonObject sun = json.value(QStringLiteral("sun")).toObject();
    EXPECT_EQ(sun.value(QStringLiteral("state")), QStringLiteral("above all day"));
    EXPECT_TRUE(sun.value(QStringLiteral("rise")).isNull());
}

TEST_F(SkyCommand, TodayAtThePanelsPlaceUnlessAsked) {
    // 2024-06-30 23:30 UTC: already July in both places.
    const ReplacedClock clock([] { return Instant::fromSecondsSince1970(1719790200.0); });
    EXPECT_TRUE(sky({}).out.startsWith(QStringLiteral("Berlin, 2024-07-01 (Europe/Berlin)\n")));
    choosePlace({{QStringLiteral("name"), QStringLiteral("Kiritimati")},
                 {QStringLiteral("timezone"), QStringLiteral("Pacific/Kiritimati")}});
    EXPECT_TRUE(
        sky({}).out.startsWith(QStringLiteral("Kiritimati, 2024-07-01 (Pacific/Kiritimati)\n")));
    choosePlace({{QStringLiteral("timezone"), QStringLiteral("No/Such")}});
    EXPECT_TRUE(sky({}).out.startsWith(QStringLiteral("Berlin, 2024-07-01 (Europe/Berlin)\n")));
}

TEST_F(SkyCommand, TellsWhatItDoesNotUnderstand) {
    for (const char* arguments :
         {"--date 2024-02-30", "--date tomorrow", "--place 52.5", "--place 91,0", "--place 0,nan",
          "--place 0,0,", "--place 0,0,Mars/Base", "--place 1,2,UTC,4", "--moon", "now",
          "--date"}) {
        const Answer answer = sky(QString::fromLatin1(arguments));
        EXPECT_EQ(answer.exitCode, ExitCode::Usage) << arguments;
        EXPECT_TRUE(answer.out.isEmpty()) << arguments;
        EXPECT_FALSE(answer.err.isEmpty()) << arguments;
    }
}

}  // namespace
}  // namespace zephyrix
