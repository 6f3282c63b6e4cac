// What can be missing or change around the panel, one surrounding at a time.
#include <memory>
#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AgedPanel.h"
#include "host/XDisplay.h"
#include "support/Files.h"
#include "support/ScopedEnvironment.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;
using ::testing::Not;

class Surroundings : public AgedPanel {
  protected:
    /// From here on, the program is a copy of its own with other data beside it; their folder.
    QString copyProgram() {
        QString data = copyProgramAlone();
        const QString modules = data + QStringLiteral("/../../bin/" MODULES_DIR);
        QDir().mkpath(modules);
        EXPECT_TRUE(QFile::link(QStringLiteral(PROGRAM_DIR "/" MODULES_DIR "/zephyrix-network.so"),
                                modules + QStringLiteral("/zephyrix-network.so")));
        return data;
    }
    QString copyProgramAlone() {
        const QString root = freshFolder();
        QDir(root).mkpath(QStringLiteral("bin"));
        QDir(root).mkpath(QStringLiteral("share/zephyrix"));
        const QString program = root + QStringLiteral("/bin/zephyrix-panel");
        EXPECT_TRUE(QFile::copy(QStringLiteral(PROGRAM_DIR "/zephyrix-panel"), program));
        panel_.runAs({program});
        return root + QStringLiteral("/share/zephyrix");
    }
};

struct Database {
    const char* what;
    QByteArray bytes;  // null for no file
    const char* told;  // null for nothing: a page that cannot be read is no news
};

TEST_F(Surroundings, WithoutItsDataThePanelShowsAllButTheWords) {
    EXPECT_THAT(report().out.toStdString(), HasSubstr("ain")) << "rain, in words";
    const QString data = copyProgram();
    const QByteArray shipped =
        contentOf(QStringLiteral(PROGRAM_DIR "/../share/zephyrix/meteoDB.sqlite"));
    ASSERT_GT(shipped.size(), 10000);
    for (const Database& row : {
             Database{"missing", {}, "no such table"},
             Database{"empty", "", "no such table"},
             Database{"no database", QByteArray(100000, 'x'), "not a database"},
             Database{"cut in its middle", shipped.left(shipped.size() / 2), "malformed"},
             Database{"cut in its first page", shipped.left(1000), "malformed"},
         }) {
        SCOPED_TRACE(row.what);
        if (!row.bytes.isNull())
            overwrite(data + QStringLiteral("/meteoDB.sqlite"), row.bytes);
        panel_.setSetting(QStringLiteral("symbolSet"), 1);  // its images are not there either
        const auto result = report();
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.out.toStdString(), HasSubstr("21°C\n"));
        const auto lines = troubles(result.err);
        ASSERT_EQ(lines.size(), 1) << result.err.toStdString();
        EXPECT_THAT(lines.first().toStdString(), HasSubstr(row.told));
    }
}

TEST_F(Surroundings, WithoutItsNetworkItKeepsTheLastWeather) {
    copyProgramAlone();
    const QVariant before = document();
    const auto result = report();
    EXPECT_THAT(result.out.toStdString(), HasSubstr("7°C"));
    EXPECT_EQ(document(), before);
    EXPECT_TRUE(server_.requestLines().isEmpty());
    EXPECT_EQ(result.err.count("zephyrix-network.so"), 1) << result.err.toStdString();
    EXPECT_THAT(result.err.toStdString(),
                HasSubstr("Transport error 99: The network cannot be used"));
}

TEST_F(Surroundings, WithoutFontsItTellsAndGoesOn) {
    const QString folder = freshFolder();
    overwrite(folder + QStringLiteral("/fonts.conf"),
              "<?xml version='1.0'?><fontconfig><cachedir>" + folder.toUtf8() +
                  "</cachedir></fontconfig>");
    const QByteArray file = (folder + QStringLiteral("/fonts.conf")).toUtf8();
    const ScopedEnvironment none{{"FONTCONFIG_FILE", file.constData()}};
    const QString picture = folder + QStringLiteral("/panel.png");
    const auto result = panel_.run(
        QStringLiteral("--text --snapshot %1 --feed %2").arg(picture, server_.baseAddress()));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.out.toStdString(), HasSubstr("21°C"));
    EXPECT_FALSE(QImage(picture).isNull());
    ASSERT_EQ(troubles(result.err).size(), 1) << result.err.toStdString();
    EXPECT_THAT(result.err.toStdString(), HasSubstr("no font is installed"));
}

TEST_F(Surroundings, OtherUsersSeeNothingOfWhatItKeeps) {
    const auto all = QFile::ReadOther | QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup;
    const QStringList folders{panel_.home() + QStringLiteral("/config/zephyrix"),
                              panel_.home() + QStringLiteral("/cache/zephyrix-panel")};
    for (const QString& folder : folders) {
        QDir().mkpath(folder);
        ASSERT_TRUE(QFile::setPermissions(folder, QFile::permissions(folder) | all));
    }
    const mode_t before = ::umask(0);  // of a careless session
    EXPECT_EQ(report().exitCode, 0);
    ::umask(before);
    int count = 0;
    for (const QString& folder : folders) {
        EXPECT_FALSE(QFile::permissions(folder) & all) << folder.toStdString();
        QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        for (; entries.hasNext(); ++count)
            EXPECT_FALSE(QFile::permissions(entries.next()) & all)
                << entries.filePath().toStdString();
    }
    EXPECT_GE(count, 4) << "two settings files, a note, a folder";
}

TEST_F(Surroundings, LostDisplayEndsItWithOneLine) {
    auto display = std::make_unique<XDisplay>();
    if (!display->isRunning())
        GTEST_SKIP() << "Xvfb is not installed";
    const QByteArray name = display->name().toLatin1();
    // It ends at once, and what its libraries hold then is no leak.
    const ScopedEnvironment there{{"DISPLAY", name.constData()},
                                  {"QT_QPA_PLATFORM", "xcb"},
                                  {"ASAN_OPTIONS", "detect_leaks=0"}};
    const QVariant aged = document();
    QProcess process;
    panel_.start(process,
                 {QStringLiteral("--window"), QStringLiteral("--feed"), server_.baseAddress()});
    ASSERT_TRUE(waitUntil([&] {
        const auto window = display->window();
        return window && window->title.contains(QLatin1String("a test"));
    }));
    QVariant stored;
    ASSERT_TRUE(waitUntil([&] { return (stored = document()) != aged; }));
    display.reset();
    ASSERT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const auto said = troubles(process.readAllStandardError());
    ASSERT_EQ(said.size(), 1) << said.join('\n').toStdString();
    EXPECT_THAT(said.first().toStdString(), HasSubstr("X11"));
    EXPECT_EQ(document(), stored);
    const ScopedEnvironment elsewhere{{"QT_QPA_PLATFORM", "offscreen"}};
    EXPECT_EQ(report().exitCode, 0) << "nothing holds the next start";
}

}  // namespace
}  // namespace zephyrix
