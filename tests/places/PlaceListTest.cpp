// The list itself: what is in it, and that its makers and its readers fold names alike.
#include <QFile>
#include <QSet>
#include <gtest/gtest.h>

#include "foundation/Bundle.h"
#include "foundation/TimeZone.h"
#include "places/CoordinateUid.h"
#include "places/PlaceList.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

/// The rows of a table of resources/places.
QVector<QStringList> tableRows(const char* name) {
    QFile file(QStringLiteral(SOURCE_DIR "/resources/places/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QVector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')))
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            rows << line.split(QLatin1Char('\t'));
    return rows;
}

TEST(PlaceList, FindsEveryPlaceOfTheTableUnderItsOwnName) {
    PlaceList list(QStringLiteral("en"));
    const auto rows = tableRows("places.tsv");
    EXPECT_GE(rows.size(), 25'000);
    int lost = 0;
    for (const QStringList& row : rows) {
        const auto found = list.search(row[1], 200);  // there are many of the name Santa Cruz
        const bool isThere = std::any_of(found.begin(), found.end(), [&](const ListedPlace& place) {
            return place.uid == row[0].toLongLong();
        });
        if (!isThere && ++lost < 5)
            ADD_FAILURE() << row.join(' ').toStdString();
    }
    EXPECT_EQ(lost, 0);
}

TEST(PlaceList, FindsEveryNameInEveryLanguage) {
    const QStringList languages{"en", "de", "pl", "nl", "fr", "es", "sv", "it", "ru"};
    for (int i = 0; i < languages.size(); ++i) {
        PlaceList list(languages[i]);
        for (const QStringList& row : tableRows("names.tsv")) {
            const QString name = row[2 + i].isEmpty() ? row[1] : row[2 + i];
            const auto found = list.search(name, 50);
            const bool isThere =
                std::any_of(found.begin(), found.end(), [&](const ListedPlace& place) {
                    return place.uid == row[0].toLongLong() && place.name == name;
                });
            EXPECT_TRUE(isThere) << name.toStdString();
        }
    }
}

TEST(PlaceList, ZonesAreThoseThatTheSystemKnows) {
    QSet<QString> zones;
    for (const QStringList& row : tableRows("places.tsv"))
        zones << row[6];
    EXPECT_GT(zones.size(), 300);
    for (const QString& zone : zones)
        EXPECT_TRUE(timeZoneWithName(zone).isValid()) << zone.toStdString();
}

TEST(PlaceList, LeavesTheDefaultPlaceAndCoordinatesTheirUids) {
    PlaceList list(QStringLiteral("en"));
    EXPECT_FALSE(list.place(LocationResult::defaultSearchResult().uid()->integerValue()));
    for (const QStringList& row : tableRows("places.tsv"))
        ASSERT_FALSE(coordinateOfUid(row[0].toLongLong())) << row[0].toStdString();
}

TEST(PlaceList, APlaceIsOneThatTheSettingsCanKeep) {
    PlaceList list(QStringLiteral("ru"));
    const auto tromso = list.place(3133895);
    ASSERT_TRUE(tromso);
    const LocationResult location(locationOf(*tromso).asDict());
    EXPECT_TRUE(location.checkValidity());
    EXPECT_EQ(location.name(), QStringLiteral("Тромсё"));
    EXPECT_EQ(location.countryName(), QStringLiteral("Норвегия"));
    EXPECT_EQ(location.provinceName(), QStringLiteral("Troms og Finnmark"));
    EXPECT_EQ(location.objTimeZone().id(), "Europe/Oslo");
    EXPECT_NEAR(location.latitude()->doubleValue(), 69.65, 0.01);
    EXPECT_NEAR(location.longitude()->doubleValue(), 18.96, 0.01);
}

TEST(PlaceList, KnowsTheZoneOfAnyCoordinates) {
    PlaceList list(QStringLiteral("en"));
    struct Case {
        Coordinate where;
        const char* zone;
        const char* why;
    };
    const std::array cases{
        Case{{52.52, 13.40}, "Europe/Berlin", "in a city"},
        Case{{78.22, 15.65}, "Arctic/Longyearbyen", "far north"},
        Case{{-16.50, 179.99}, "Pacific/Fiji", "before the date line"},
        Case{{-16.80, -179.99}, "Pacific/Fiji", "the nearest place is beyond it"},
        Case{{-23.0, -133.0}, "Etc/GMT+9", "high seas in the west"},
        Case{{-40.0, 80.0}, "Etc/GMT-5", "high seas in the east"},
        Case{{-20.0, 5.0}, "Etc/GMT", "high seas at Greenwich"},
        Case{{90.0, 0.0}, "Etc/GMT", "the pole"},
        Case{{-90.0, 180.0}, "Etc/GMT-12", "the other pole"},
    };
    for (const Case& aCase : cases) {
        EXPECT_EQ(list.zoneAt(aCase.where), QLatin1String(aCase.zone)) << aCase.why;
        EXPECT_TRUE(timeZoneWithName(QLatin1String(aCase.zone)).isValid()) << aCase.zone;
    }
}

/// A bundle whose list is something else, until the test ends.
class OtherList : public ::testing::TestWithParam<const char*> {
  protected:
    OtherList() {
        const QString folder = testing::freshFolder();
        Bundle::main().setDataDirectory(folder);
        if (GetParam() == nullptr)
            return;
        QFile file(folder + QStringLiteral("/places.sqlite"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(GetParam());
    }
    ~OtherList() override { Bundle::main().setDataDirectory(QString()); }
};

TEST_P(OtherList, IsOneWithoutPlaces) {
    PlaceList list(QStringLiteral("en"));
    EXPECT_TRUE(list.search(QStringLiteral("tromso"), 5).empty());
    EXPECT_FALSE(list.place(3133895));
    EXPECT_EQ(list.zoneAt({69.65, 18.96}), QStringLiteral("Etc/GMT-1"));
}

INSTANTIATE_TEST_SUITE_P(MissingEmptyOrDamaged, OtherList,
                         ::testing::Values(nullptr, "", "no database, but long enough to be one"));

}  // namespace
}  // namespace zephyrix
