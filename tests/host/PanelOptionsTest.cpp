#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/PanelOptions.h"

namespace zephyrix {
namespace {

PanelOptions parse(const char* line) {
    return PanelOptions::parse(QStringLiteral("zephyrix-panel %1")
                                   .arg(QString::fromUtf8(line))
                                   .split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

TEST(PanelOptions, AreReadFromTheCommandLine) {
    const PanelOptions none = parse("");
    EXPECT_FALSE(none.reportsOnly() || none.window || none.expanded || none.scale ||
                 none.paintTime);
    EXPECT_TRUE(none.feed.address.isEmpty());

    const PanelOptions all = parse(
        "--text --snapshot p.png --expanded --paint-time --width 320 --scale=1.25 --scheme dark "
        "--feed http://127.0.0.1:8080 --allow-plain-http");
    EXPECT_TRUE(all.reportsOnly() && all.text && all.expanded && all.paintTime);
    EXPECT_EQ(all.snapshot, QStringLiteral("p.png"));
    EXPECT_EQ(all.width, 320);
    EXPECT_EQ(all.scale, 1.25);
    EXPECT_EQ(all.scheme, PanelOptions::Scheme::Dark);
    EXPECT_EQ(all.feed.address, QStringLiteral("http://127.0.0.1:8080/"));
    EXPECT_TRUE(all.feed.allowPlainHttp && !none.feed.allowPlainHttp);
}

struct BadLine {
    const char* line;
    const char* named;  // what the message has to name
};

TEST(PanelOptions, BadOnesAreNamed) {
    constexpr std::array lines{
        BadLine{"--texts", "texts"},
        BadLine{"panel.png", "panel.png"},
        BadLine{"--snapshot", "snapshot"},
        BadLine{"--text --json", "--json"},
        BadLine{"--format {humidity}", "{humidity}"},
        BadLine{"--format waybar --json", "--format"},
        BadLine{"--follow", "--format"},
        BadLine{"--follow --text", "--format"},
        BadLine{"--width 319", "--width"},
        BadLine{"--width wide", "wide"},
        BadLine{"--width nan", "nan"},
        BadLine{"--scale 0", "--scale"},
        BadLine{"--scheme pink", "pink"},
        BadLine{"--feed file:///etc/passwd", "file:///etc/passwd"},
        BadLine{"--feed mailto:a@example.org", "mailto:"},
    };
    for (const BadLine& bad : lines) {
        try {
            const PanelOptions taken = parse(bad.line);
            ADD_FAILURE() << bad.line << " was taken";
        } catch (const PanelOptions::Error& error) {
            EXPECT_THAT(error.what(), ::testing::HasSubstr(bad.named)) << bad.line;
        }
    }
}

}  // namespace
}  // namespace zephyrix
