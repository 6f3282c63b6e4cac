// What comes first for what a person types.
#include <gtest/gtest.h>

#include "places/PlaceList.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

TEST(PlaceSearch, FindsWhatAPersonMeans) {
    forEachLine("places/searches.txt", [](const DataLine& line) {
        const auto found = PlaceList(line[1]).search(line[0], 5);
        ASSERT_FALSE(found.empty());
        const ListedPlace& first = found.front();
        EXPECT_EQ(QStringLiteral("%1, %2 %3").arg(first.name, first.countryCode, first.zone),
                  QStringLiteral("%1 %2").arg(line[2], line[3]));
    });
}

TEST(PlaceSearch, TextThatMeansSomethingToTheIndexOrToSqlIsText) {
    PlaceList list(QStringLiteral("en"));
    forEachLine("places/strange_searches.tsv", [&](const DataLine& line) {
        EXPECT_EQ(static_cast<qint64>(list.search(line[1], 3).size()), line.integer(0));
    });
    EXPECT_TRUE(list.search(QString(3, QChar(0xD800)), 3).empty());  // half of a pair
    EXPECT_TRUE(list.search(QString(1, QChar(0)) + QStringLiteral("qqq"), 3).empty());
    EXPECT_EQ(list.search(QStringLiteral("tromso") + QString(100'000, QLatin1Char(' ')), 3).size(),
              1U);
    EXPECT_TRUE(list.search(QString(100'000, QLatin1Char('a')), 3).empty());
    EXPECT_EQ(list.search(QStringLiteral("oslo"), 3).front().name, QStringLiteral("Oslo"));
}

TEST(PlaceSearch, ComesInTheOrderOfKindAndSizeAndOnlyOnceEach) {
    PlaceList list(QStringLiteral("en"));
    const auto found = list.search(QStringLiteral("york"), 12);
    ASSERT_EQ(found.size(), 12U);
    const auto kindOf = [](const ListedPlace& place) {
        const QString name = place.name.toLower();
        return name == QLatin1String("york")            ? 0
               : name.startsWith(QLatin1String("york")) ? 1
               : name.contains(QLatin1String("york"))   ? 2
                                                        : 3;
    };
    for (std::size_t i = 1; i < found.size(); ++i) {
        const int before = kindOf(found[i - 1]);
        const int here = kindOf(found[i]);
        const bool isLarger = found[i - 1].inhabitants >= found[i].inhabitants;
        EXPECT_TRUE(before < here || (before == here && isLarger)) << found[i].name.toStdString();
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_NE(found[i].uid, found[j].uid);
    }
    EXPECT_EQ(kindOf(found.front()), 0);
    EXPECT_EQ(kindOf(found.back()), 3);
}

}  // namespace
}  // namespace zephyrix
