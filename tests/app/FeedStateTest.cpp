#include <array>

#include <QDateTime>
#include <gtest/gtest.h>

#include "app/FeedState.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

constexpr double fetchedAt = 1'433'150'000;  // 2015-06-01 09:13:20 UTC

QVariantMap document(const QVariant& source = {}, const QVariantMap& obs = {}) {
    QVariantMap document{
        {QStringLiteral("insertDtg"), Instant::fromSecondsSince1970(fetchedAt).toDateTime()},
        {QStringLiteral("uid"), 7LL},
        {QStringLiteral("obs"), obs}};
    if (source.isValid())
        document.insert(QStringLiteral("source"), source);
    return document;
}

TEST(FeedState, TellsHowOldTheWeatherIs) {
    testing::forEachLine("app/ages.tsv", [](const testing::DataLine& line) {
        const auto now = Instant::fromSecondsSince1970(fetchedAt + line.number(0));
        const QString state = feedState(document(), Number(7), now).state;
        EXPECT_TRUE(state.startsWith(line[1])) << state.toStdString();
    });
}

TEST(FeedState, WithoutADocumentOfThePlaceThereIsNoWeather) {
    const auto now = Instant::fromSecondsSince1970(fetchedAt);
    QVariantMap undated = document();
    undated.insert(QStringLiteral("insertDtg"), 5);
    const std::array<std::pair<std::optional<QVariantMap>, std::optional<Number>>, 5> cases{{
        {std::nullopt, Number(7)},
        {document(), Number(8)},
        {document(), std::nullopt},
        {undated, Number(7)},
        {QVariantMap(), std::nullopt},
    }};
    for (const auto& [known, uid] : cases)
        EXPECT_TRUE(feedState(known, uid, now).state.startsWith(QLatin1String("No weather")));
}

TEST(FeedState, NamesSourceAndLicenceWhereverTheFeedPutThem) {
    const QVariantMap both{{QStringLiteral("name"), QStringLiteral("A service")},
                           {QStringLiteral("licence"), QStringLiteral("CC BY 4.0")}};
    const QVariantMap demonstration{{QStringLiteral("source"), QStringLiteral("demonstration")}};
    struct Case {
        QVariantMap document;
        const char* source;
        const char* licence;
    };
    const std::array cases{
        Case{document(both), "A service", "CC BY 4.0"},
        Case{document(both, demonstration), "A service", "CC BY 4.0"},
        Case{document(QStringLiteral("A name")), "A name", ""},
        Case{document({}, demonstration), "Demonstration weather", ""},
        Case{document({}, {{QStringLiteral("source"), QStringLiteral("A service")},
                           {QStringLiteral("licence"), QStringLiteral("NLOD")}}),
             "A service", "NLOD"},
        Case{document(), "", ""},
        Case{document(QVariantList{1, 2}), "", ""},
        Case{document(QVariantMap{{QStringLiteral("name"), 5}}), "5", ""},
    };
    for (const Case& aCase : cases) {
        const FeedState state = feedState(aCase.document, Number(7), Instant());
        EXPECT_EQ(state.source, QLatin1String(aCase.source));
        EXPECT_EQ(state.licence, QLatin1String(aCase.licence));
    }
}

}  // namespace
}  // namespace zephyrix
