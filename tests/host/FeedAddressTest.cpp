#include <array>

#include <gtest/gtest.h>

#include "host/FeedAddress.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

struct Written {
    const char* address;
    const char* meant;
};

TEST(FeedAddress, IsHttpsWhereNoSchemeIsWritten) {
    constexpr std::array rows{
        Written{"example.org", "https://example.org/"},
        Written{" example.org:8443/weather ", "https://example.org:8443/weather/"},
        Written{"localhost:80", "https://localhost:80/"},
        Written{"127.0.0.1", "https://127.0.0.1/"},
        Written{"[::1]:8080", "https://[::1]:8080/"},
        Written{"http://127.0.0.1:80/", "http://127.0.0.1:80/"},
        // A scheme that no feed has stays what it is, and is refused.
        Written{"file:///etc/passwd", "file:///etc/passwd/"},
        Written{"mailto:a@example.org", "mailto:a@example.org/"},
        Written{"data:,{}", "data:,{}/"},
        Written{"/etc/passwd", "/etc/passwd/"},
    };
    for (const Written& row : rows)
        EXPECT_EQ(completeFeedAddress(QLatin1String(row.address)), QLatin1String(row.meant));
}

struct Plain {
    const char* address;
    bool isThisMachine;
};

TEST(FeedAddress, PlainHttpComesFromThisMachineUnlessTheUserSaysOtherwise) {
    constexpr std::array rows{
        Plain{"http://127.0.0.1:80/", true},
        Plain{"http://127.9.9.9/", true},
        Plain{"http://localhost/", true},
        Plain{"http://[::1]:80/", true},
        Plain{"https://example.org/", true},
        Plain{"http://example.org/", false},
        Plain{"HTTP://192.168.1.2/", false},
        Plain{"http://127.0.0.1.example.org/", false},
        Plain{"http://127.0.0.1@example.org/", false},
        Plain{"http://localhost.example/", false},
        Plain{"http://0.0.0.0/", false},
    };
    qputenv("XDG_CONFIG_HOME", testing::freshFolder().toUtf8());
    UserDefaults& settings = UserDefaults::standard();
    FeedChild own(QStringLiteral("/bin/false"));
    const auto ask = [&](const FeedChoice& given) {
        QString answer;
        feedAddress(given, settings, own)([&](const QString& base) { answer = base; });
        return answer;
    };
    for (const Plain& row : rows) {
        const QString address = QLatin1String(row.address);
        settings.remove(QStringLiteral("allowPlainHttp"));
        settings.set(QStringLiteral("feedServer"), address);
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(ask({}).isEmpty(), !row.isThisMachine) << row.address;
        EXPECT_EQ(ask({address, false}).isEmpty(), !row.isThisMachine) << row.address;
        const std::string log = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(log.find("plain http") == std::string::npos, row.isThisMachine) << log;
        EXPECT_EQ(ask({address, true}), address);
        settings.set(QStringLiteral("allowPlainHttp"), true);
        EXPECT_EQ(ask({}), address);
    }
}

}  // namespace
}  // namespace zephyrix
