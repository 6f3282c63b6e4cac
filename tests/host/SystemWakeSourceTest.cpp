#include <cstring>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <vector>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTimer>
#include <gtest/gtest.h>

#include "foundation/Clock.h"
#include "host/SystemWakeSource.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// The kernel's names for what this process holds open.
QStringList openDescriptors() {
    QStringList names;
    const QDir folder(QStringLiteral("/proc/self/fd"));
    for (const QString& entry : folder.entryList(QDir::Files | QDir::System | QDir::Hidden))
        names << QFile::symLinkTarget(folder.filePath(entry));
    return names.filter(QRegularExpression(QStringLiteral("timerfd|inotify|socket")));
}

TEST(SystemWakeSource, TellsEachMomentOnceAlsoOneThatHasPassed) {
    SystemWakeSource wakes;
    std::vector<Instant> told;
    QObject::connect(&wakes, &WakeSource::due, &wakes, [&] { told.push_back(Clock::now()); });
    for (const double seconds : {-1e9, -1.0, 0.05}) {
        told.clear();
        const Instant moment = Clock::now().addingSeconds(seconds);
        wakes.wakeAt(Clock::now().addingSeconds(100.0));
        wakes.wakeAt(moment);
        ASSERT_TRUE(waitUntil([&] { return !told.empty(); })) << seconds;
        EXPECT_GE(told.front(), moment);
        bool later = false;
        QTimer::singleShot(20, [&] { later = true; });
        ASSERT_TRUE(waitUntil([&] { return later; }));
        EXPECT_EQ(told.size(), 1U) << seconds;
    }
}

TEST(SystemWakeSource, HoldsNothingOpenBeforeAndAfter) {
    const auto before = openDescriptors();
    SystemWakeSource wakes;
    EXPECT_EQ(openDescriptors(), before);
    wakes.wakeAt(Clock::now().addingSeconds(100.0));
    wakes.watchNetwork(true);
    EXPECT_EQ(openDescriptors().size(), before.size() + 3);
    wakes.watchNetwork(false);
    EXPECT_EQ(openDescriptors().size(), before.size() + 2);
    wakes.stop();
    EXPECT_EQ(openDescriptors(), before);
}

class ZoneWatchTest : public ::testing::Test {
  protected:
    void choose(const char* zone, const QString& link) const {
        ASSERT_TRUE(
            QFile::link(QStringLiteral("/usr/share/zoneinfo/") + QLatin1String(zone), link));
    }
    [[nodiscard]] bool isTold() {
        const bool told = waitUntil([this] { return told_ > 0; });
        told_ = 0;
        return told;
    }

    QString folder_ = freshFolder();
    QString link_ = folder_ + QStringLiteral("/localtime");
    int told_ = 0;
};

TEST_F(ZoneWatchTest, TellsEachWayInWhichAZoneIsChosen) {
    choose("Europe/Berlin", link_);
    ZoneWatch watch(link_.toUtf8());
    QObject::connect(&watch, &ZoneWatch::changed, &watch, [this] { ++told_; });
    for (const char* zone : {"Asia/Tokyo", "Europe/Paris"}) {  // the way of the system's services
        choose(zone, link_ + QStringLiteral(".new"));
        ASSERT_EQ(::rename(qPrintable(link_ + QStringLiteral(".new")), qPrintable(link_)), 0);
        EXPECT_TRUE(isTold()) << zone;
    }
    QFile::remove(link_);
    EXPECT_TRUE(isTold()) << "removed";
    choose("Europe/Oslo", link_);
    EXPECT_TRUE(isTold()) << "made again";
    QFile::remove(link_);
    choose("Europe/Rome", link_);
    EXPECT_TRUE(isTold()) << "both at once";
    QFile::remove(link_);
    EXPECT_TRUE(isTold()) << "still watched";
}

/// One message of the kernel about a route.
std::vector<char> routeMessage(std::uint16_t type, std::uint8_t prefix, std::uint8_t kind) {
    nlmsghdr head{};
    head.nlmsg_len = NLMSG_LENGTH(sizeof(rtmsg));
    head.nlmsg_type = type;
    rtmsg route{};
    route.rtm_dst_len = prefix;
    route.rtm_type = kind;
    std::vector<char> bytes(head.nlmsg_len);
    std::memcpy(bytes.data(), &head, sizeof head);
    std::memcpy(bytes.data() + NLMSG_HDRLEN, &route, sizeof route);
    return bytes;
}

TEST(RouteWatch, KnowsANewDefaultRouteAmongOtherNews) {
    const auto isDefault = RouteWatch::tellsOfDefaultRoute;
    const auto added = routeMessage(RTM_NEWROUTE, 0, RTN_UNICAST);
    EXPECT_TRUE(isDefault(added));
    EXPECT_FALSE(isDefault(routeMessage(RTM_DELROUTE, 0, RTN_UNICAST)));
    EXPECT_FALSE(isDefault(routeMessage(RTM_NEWROUTE, 24, RTN_UNICAST))) << "a network next door";
    EXPECT_FALSE(isDefault(routeMessage(RTM_NEWROUTE, 0, RTN_UNREACHABLE)));

    auto several = routeMessage(RTM_NEWROUTE, 64, RTN_LOCAL);
    several.insert(several.end(), added.begin(), added.end());
    EXPECT_TRUE(isDefault(several));
    for (std::size_t length = 0; length < several.size(); ++length)
        EXPECT_FALSE(isDefault({several.data(), length})) << "cut off at " << length;
    std::vector<char> endless(sizeof(nlmsghdr), '\0');
    EXPECT_FALSE(isDefault(endless)) << "a message that claims no length";
}

}  // namespace
}  // namespace zephyrix
