#include <gtest/gtest.h>

#include "host/FeedAddress.h"
#include "host/PaintGate.h"
#include "support/DataLines.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

TEST(FeedAddress, IsHttpsWhereNoSchemeIsWritten) {
    forEachLine("host/written_addresses.tsv",
                [](const DataLine& line) { EXPECT_EQ(completeFeedAddress(line[0]), line[1]); });
}

TEST(FeedAddress, PlainHttpComesFromThisMachineUnlessTheUserSaysOtherwise) {
    qputenv("XDG_CONFIG_HOME", freshFolder().toUtf8());
    UserDefaults& settings = UserDefaults::standard();
    FeedChild own(QStringLiteral("/bin/false"));
    const auto ask = [&](const FeedChoice& given) {
        QString answer;
        feedAddress(given, settings, own)([&](const QString& base) { answer = base; });
        return answer;
    };
    forEachLine("host/plain_addresses.tsv", [&](const DataLine& line) {
        const QString address = line[0];
        const bool isAsked = line.isYes(1);
        settings.remove(QStringLiteral("allowPlainHttp"));
        settings.set(QStringLiteral("feedServer"), address);
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(ask({}).isEmpty(), !isAsked);
        EXPECT_EQ(ask({address, false}).isEmpty(), !isAsked);
        const std::string log = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(log.find("plain http") == std::string::npos, isAsked) << log;
        EXPECT_EQ(ask({address, true}), address);
        settings.set(QStringLiteral("allowPlainHttp"), true);
        EXPECT_EQ(ask({}), address);
    });
}

TEST(PaintGate, TheFeedIsAskedAfterTheFirstPaintAndThenAtOnce) {
    int asked = 0;
    QStringList answers;
    const auto take = [&](const QString& base) { answers << base; };
    PaintGate gate;
    const WeatherFeed::BaseAddress address =
        gate.before([&](const auto& then) { then(QString::number(++asked)); });
    address(take);
    address(take);
    EXPECT_EQ(asked, 0);
    gate.open();
    EXPECT_EQ(answers.join(u' '), QStringLiteral("1 2"));
    gate.open();
    address(take);
    EXPECT_EQ(answers.join(u' '), QStringLiteral("1 2 3"));
}

}  // namespace
}  // namespace zephyrix
