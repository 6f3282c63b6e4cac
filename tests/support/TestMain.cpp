// Every test runs in the same surroundings, whatever the machine's are: no display, an empty home,
// the zone Europe/Berlin, English texts.
#include <QByteArray>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestHome.h"

namespace {

void setSurroundings() {
    const QByteArray home = zephyrix::testing::testHome().toUtf8();
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/config");
    qputenv("XDG_CACHE_HOME", home + "/cache");
    qputenv("XDG_DATA_HOME", home + "/data");
    qputenv("XDG_RUNTIME_DIR", home);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Europe/Berlin");
    qputenv("LANG", "en_US.UTF-8");
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "DBUS_SESSION_BUS_ADDRESS",
                             "DISPLAY", "WAYLAND_DISPLAY", "QT_SCALE_FACTOR"})
        qunsetenv(name);
}

}  // namespace

int main(int argc, char** argv) {
    setSurroundings();
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
