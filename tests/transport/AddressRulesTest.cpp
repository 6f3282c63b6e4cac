#include <cstdio>

#include <QHostAddress>
#include <QUrl>
#include <gtest/gtest.h>

#include "transport/AddressRules.h"

namespace zephyrix {
namespace {

TEST(FeedAddress, IsHttpWithAHost) {
    for (const char* good : {"http://127.0.0.1:80/a?b=1", "https://example.org/"})
        EXPECT_TRUE(isFeedAddress(QUrl(good, QUrl::StrictMode))) << good;
    for (const char* bad : {"", "zephyrix/", "file:///etc/passwd", "ftp://example.org/",
                            "http:///path", "http://exa mple.org/", "http://[::1/", "data:,{}"})
        EXPECT_FALSE(isFeedAddress(QUrl(bad, QUrl::StrictMode))) << bad;
}

const QString spellings = QStringLiteral(
    "127.0.0.1 127.255.255.254 127.1 127.1.2 0127.0.0.1 0x7f.1 0X7F000001 2130706433 127.0.0.1. "
    "127.0.0.256 127.0.0.0.1 127.0.0.1x 127 1.0.0.127 126.255.255.255 128.0.0.1 0.0.0.0 "
    "%31%32%37.0.0.1 127%2e0.0.1 \u2460\u2461\u2466.0.0.1 127\u30020.0.1 localhost LOCALHOST "
    "localhost. localhost.example example.org [::1] [0:0::0001] [0:0:0:0:0:0:0:1] [::0.0.0.1] "
    "[::1%25eth0] [::1%eth0] [::2] [::] [1::] [::127.0.0.1] [::ffff:127.0.0.1] [::FFFF:7f01:203] "
    "[::ffff:128.0.0.1] [::fffe:127.0.0.1] [64:ff9b::7f00:1] [fe80::1%25lo] [v1.127]");

/// Qt's network, which makes the connection, has to take an address for the same.
TEST(ThisMachine, IsWhatTheNetworkTakesForIt) {
    int own = 0;
    for (const QString& host : spellings.split(QLatin1Char(' '))) {
        for (const auto mode : {QUrl::StrictMode, QUrl::TolerantMode}) {
            const QUrl address(QStringLiteral("http://%1:80/").arg(host), mode);
            const bool isOwn = address.host() == QLatin1String("localhost") ||
                               QHostAddress(address.host()).isLoopback();
            own += isOwn ? 1 : 0;
            EXPECT_EQ(isThisMachine(address), isOwn)
                << host.toStdString() << " is " << address.host().toStdString();
        }
    }
    std::printf("%d spellings of this machine\n", own);
    EXPECT_GE(own, 20);
    EXPECT_FALSE(isThisMachine(QUrl()));
}

}  // namespace
}  // namespace zephyrix
