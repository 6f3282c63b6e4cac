#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/PanelOptions.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

PanelOptions parse(const QString& line) {
    return PanelOptions::parse(
        QStringLiteral("zephyrix-panel %1").arg(line).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

TEST(PanelOptions, AreReadFromTheCommandLine) {
    const PanelOptions none = parse({});
    EXPECT_FALSE(none.reportsOnly() || none.window || none.expanded || none.scale ||
                 none.paintTime);
    EXPECT_TRUE(none.feed.address.isEmpty());

    const PanelOptions all = parse(QStringLiteral(
        "--text --snapshot p.png --expanded --paint-time --width 320 --scale=1.25 --scheme dark "
        "--feed http://127.0.0.1:8080 --allow-plain-http"));
    EXPECT_TRUE(all.reportsOnly() && all.text && all.expanded && all.paintTime);
    EXPECT_EQ(all.snapshot, QStringLiteral("p.png"));
    EXPECT_EQ(all.width, 320);
    EXPECT_EQ(all.scale, 1.25);
    EXPECT_EQ(all.scheme, PanelOptions::Scheme::Dark);
    EXPECT_EQ(all.feed.address, QStringLiteral("http://127.0.0.1:8080/"));
    EXPECT_TRUE(all.feed.allowPlainHttp && !none.feed.allowPlainHttp);
}

TEST(PanelOptions, BadOnesAreNamed) {
    testing::forEachLine("host/bad_options.tsv", [](const testing::DataLine& line) {
        try {
            const PanelOptions taken = parse(line[0]);
            ADD_FAILURE() << "was taken";
        } catch (const PanelOptions::Error& error) {
            EXPECT_THAT(error.what(), ::testing::HasSubstr(line[1].toStdString()));
        }
    });
}

}  // namespace
}  // namespace zephyrix
