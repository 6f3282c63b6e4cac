// The list itself: what is in it, and that its makers and its readers fold names alike.
#include <QSet>
#include <gtest/gtest.h>

#include "foundation/Bundle.h"
#include "foundation/TimeZone.h"
#include "places/CoordinateUid.h"
#include "places/PlaceList.h"
#include "support/DataLines.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// The rows of a table of resources/places.
QVector<QStringList> tableRows(const char* name) {
    const QByteArray table =
        contentOf(QStringLiteral(SOURCE_DIR "/resources/places/") + QLatin1String(name));
    QVector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(table).split(QLatin1Char('\n')))
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
    forEachLine("places/zones.tsv", [&](const DataLine& line) {
        EXPECT_EQ(list.zoneAt({line.number(0), line.number(1)}), line[2]);
        EXPECT_TRUE(timeZoneWithName(line[2]).isValid());
    });
}

/// A bundle whose list is something else, until the test ends.
class OtherList : public ::testing::TestWithParam<const char*> {
  protected:
    OtherList() {
        const QString folder = freshFolder();
        Bundle::main().setDataDirectory(folder);
        if (GetParam() != nullptr)
            overwrite(folder + QStringLiteral("/places.sqlite"), GetParam());
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
