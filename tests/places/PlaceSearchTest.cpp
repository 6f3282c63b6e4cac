// What comes first for what a person types.
#include <array>

#include <gtest/gtest.h>

#include "places/PlaceList.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

TEST(PlaceSearch, FindsWhatAPersonMeans) {
    for (const QStringList& line : testing::dataLines(QStringLiteral("places/searches.txt"))) {
        ASSERT_EQ(line.size(), 5) << line.join('\t').toStdString();
        PlaceList list(line[1]);
        const auto found = list.search(line[0], 5);
        ASSERT_FALSE(found.empty()) << line.join('\t').toStdString();
        const ListedPlace& first = found.front();
        EXPECT_EQ(QStringLiteral("%1, %2 %3").arg(first.name, first.countryCode, first.zone),
                  QStringLiteral("%1 %2").arg(line[2], line[3]))
            << line.join('\t').toStdString();
    }
}

TEST(PlaceSearch, TextThatMeansSomethingToTheIndexOrToSqlIsText) {
    PlaceList list(QStringLiteral("en"));
    struct Case {
        const char* text;
        std::size_t found;  // of at most 3
        const char* why;
    };
    const std::array cases{
        Case{"\"", 0, "an open quote"},
        Case{"tromso\"", 1, "after a word"},
        Case{"'; DROP TABLE place; --", 0, "SQL"},
        Case{"tromso' OR 1=1", 0, "SQL that would find all"},
        Case{"*", 0, "all words"},
        Case{"tromso*", 1, "the index's own wildcard"},
        Case{"name : tromso", 0, "a column"},
        Case{"NOT paris", 0, "an operator"},
        Case{"oslo OR", 0, "one without its second side"},
        Case{"NEAR(paris)", 0, "a function"},
        Case{"^tromso", 1, "the beginning"},
        Case{"{tromso", 1, "a list of columns"},
        Case{"-tromso", 1, "all but a column"},
        Case{"((((((", 0, "brackets"},
        Case{"", 0, "nothing"},
        Case{"   ", 0, "blanks"},
        Case{"\xF0\x9F\x8C\xA7", 0, "a symbol beyond 16 bits"},
    };
    for (const Case& aCase : cases)
        EXPECT_EQ(list.search(QString::fromUtf8(aCase.text), 3).size(), aCase.found)
            << aCase.text << ": " << aCase.why;
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
