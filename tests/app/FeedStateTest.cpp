#include <array>

#include <QJsonDocument>
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
    testing::forEachLine("app/sources.tsv", [](const testing::DataLine& line) {
        const QByteArray json = "[" + line.utf8(0) + "," + line.utf8(1) + "]";
        const QVariantList parts = QJsonDocument::fromJson(json).toVariant().toList();
        ASSERT_EQ(parts.size(), 2);
        const QVariant source = parts[0].isNull() ? QVariant() : parts[0];
        const FeedState state = feedState(document(source, parts[1].toMap()), Number(7), Instant());
        EXPECT_EQ(state.source, line[2]);
        EXPECT_EQ(state.licence, line[3]);
    });
}

}  // namespace
}  // namespace zephyrix
