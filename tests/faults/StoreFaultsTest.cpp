// What can happen to the panel's files while it uses them. Damaged files, foreign locks, two
// writers and full disks are tested one by one at UserDefaults and QKWeatherSymbols.
#include <algorithm>
#include <chrono>
#include <optional>
#include <random>

#include <QDir>
#include <QElapsedTimer>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AgedPanel.h"
#include "foundation/PropertyList.h"
#include "support/Files.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using namespace std::chrono_literals;
using ::testing::HasSubstr;

class StoreFaults : public AgedPanel {
  protected:
    [[nodiscard]] QString settingsFolder() const {
        return panel_.home() + QStringLiteral("/config/zephyrix");
    }
    [[nodiscard]] QString storeFile() const {
        return settingsFolder() + QStringLiteral("/zephyrix-panel.plist");
    }
    /// Starts a report and kills it after that time (microseconds). Nothing when it was killed,
    /// else the time after which it had ended by itself.
    std::optional<qint64> killAfter(qint64 time) {
        QProcess process;
        process.setStandardErrorFile(QProcess::nullDevice());
        panel_.start(process,
                     {QStringLiteral("--text"), QStringLiteral("--feed"), server_.baseAddress()});
        QTimer knife;
        knife.setTimerType(Qt::PreciseTimer);
        QObject::connect(&knife, &QTimer::timeout, &process, &QProcess::kill);
        QElapsedTimer life;
        life.start();
        knife.start(std::chrono::ceil<std::chrono::milliseconds>(std::chrono::microseconds(time)));
        EXPECT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
        return process.exitStatus() == QProcess::CrashExit
                   ? std::nullopt
                   : std::optional(life.nsecsElapsed() / 1000);
    }
};

TEST_F(StoreFaults, TwoHundredKillsAtAnyMomentLoseNothing) {
    constexpr int kills = 200;
    constexpr int most = 1000;  // runs, some of which end before they are killed
    const auto seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    QElapsedTimer watch;
    watch.start();
    ASSERT_EQ(report().exitCode, 0);
    qint64 life = watch.nsecsElapsed() / 1000;  // the shortest whole run that was seen
    const QVariant place = panel_.sharedSetting(QStringLiteral("location"));
    int killed = 0;
    int rejected = 0;
    int runs = 0;
    for (; killed < kills && runs < most; ++runs) {
        SCOPED_TRACE("run " + std::to_string(runs));
        age();
        panel_.setSetting(QStringLiteral("other%1").arg(runs), runs);  // as another writer would
        const auto ended = killAfter(std::uniform_int_distribution<qint64>(0, life)(random));
        life = std::min(life, ended.value_or(life));
        killed += ended ? 0 : 1;
        const auto values = PropertyList::read(contentOf(storeFile()));
        ASSERT_TRUE(values) << "the file is torn";
        ASSERT_EQ(panel_.sharedSetting(QStringLiteral("location")), place);
        const bool kept = values->contains(QStringLiteral("lastWeatherData"));
        rejected += kept ? 0 : 1;
        ASSERT_TRUE(kept || values->contains(QStringLiteral("lastWeatherData.rejected")));
    }
    std::printf("%d kills in %d runs, %d documents set aside, %.1f s\n", killed, runs, rejected,
                static_cast<double>(watch.elapsed()) / 1000.0);
    EXPECT_EQ(killed, kills);
    for (int i = 0; i < runs; ++i)
        EXPECT_EQ(panel_.setting(QStringLiteral("other%1").arg(i)), i);
    EXPECT_EQ(QDir(settingsFolder()).entryList({QStringLiteral("*.corrupt*")}), QStringList());
    age();
    const auto after = report();
    EXPECT_EQ(after.exitCode, 0) << after.err.toStdString();
    EXPECT_THAT(after.out.toStdString(), HasSubstr("21°C"));
}

struct Disk {
    const char* state;
    const char* told;
};

TEST_F(StoreFaults, DiskWithoutRoomLeavesTheFilesAsTheyWereAndThePanelUsable) {
    const QString tool = QStringLiteral(SOURCE_DIR "/tests/faults/on-a-small-disk");
    QProcess possible;
    possible.start(tool, {QStringLiteral("full"), panel_.home(), QStringLiteral("true")});
    if (!possible.waitForFinished() || possible.exitCode() != 0)
        GTEST_SKIP() << "this user cannot mount a disk of his own: "
                     << possible.readAllStandardError().toStdString();
    const QByteArray before = contentOf(storeFile());
    for (const Disk& disk :
         {Disk{"full", "No space left on device"}, Disk{"read-only", "Read-only file system"}}) {
        SCOPED_TRACE(disk.state);
        panel_.runAs({tool, QLatin1String(disk.state), panel_.home(),
                      QStringLiteral(PROGRAM_DIR "/zephyrix-panel")});
        const auto result = report();
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.out.toStdString(), HasSubstr("21°C"));
        EXPECT_EQ(contentOf(panel_.home() +
                            QStringLiteral(".after/config/zephyrix/zephyrix-panel.plist")),
                  before);
        EXPECT_THAT(result.err.toStdString(), HasSubstr(disk.told));
        EXPECT_THAT(result.err.toStdString(), HasSubstr("are not saved"));
    }
}

TEST_F(StoreFaults, CacheFolderThatVanishesIsNotMissed) {
    QProcess process;
    panel_.start(process,
                 {QStringLiteral("--window"), QStringLiteral("--feed"), server_.baseAddress()});
    const QString cache = panel_.home() + QStringLiteral("/cache/zephyrix-panel");
    const QDir symbols(cache + QStringLiteral("/symbolCache"));
    const auto hasSymbol = [&] { return !symbols.entryList(QDir::Files).isEmpty(); };
    ASSERT_TRUE(waitUntil([&] { return hasSymbol() && server_.requestLines().size() == 1; }));
    ASSERT_TRUE(QDir(cache).removeRecursively());
    // Another place lets the panel start over.
    panel_.choosePlace(77);
    ASSERT_TRUE(waitUntil([&] { return server_.requestLines().size() == 2; }));
    process.terminate();
    ASSERT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(troubles(process.readAllStandardError()), QList<QByteArray>());
    EXPECT_EQ(report().exitCode, 0);
    EXPECT_TRUE(hasSymbol()) << "made again by the next start";
}

}  // namespace
}  // namespace zephyrix
