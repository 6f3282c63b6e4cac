// What can be wrong with a settings file and its folder. Where the process itself must be changed
// (its permissions, its limits), the case runs in a process of its own.
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <linux/capability.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SettingsFolder.h"
#include "support/Files.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::AllOf;
using ::testing::ExitedWithCode;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::ResultOf;

const QString city = QStringLiteral("city");
const QString wind = QStringLiteral("wind");
const QByteArray sound = "<plist><dict><key>city</key><integer>7</integer></dict></plist>";

auto oneLineWith(const std::string& text) {
    const auto lines = [](const std::string& log) {
        return std::count(log.begin(), log.end(), '\n');
    };
    return AllOf(HasSubstr(text), ResultOf("number of lines", lines, 1));
}

/// Even the superuser is bound by permission bits from here on.
void dropCapabilities() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2]{};
    if (::syscall(SYS_capset, &header, none) != 0)
        std::_Exit(99);
}

void require(bool condition, int code) {
    if (!condition)
        std::_Exit(code);
}

/// A store's file, in a folder that is there.
class SettingsFaults : public ::testing::Test {
  protected:
    static void allow(const QString& what, mode_t mode) {
        ::chmod(QFile::encodeName(what).constData(), mode);
    }

    SettingsFolder folder;
    QString path = folder.make() + QStringLiteral("/group.Zephyrix.plist");
};

TEST_F(SettingsFaults, ADamagedFileIsKeptAsideAndTold) {
    const QByteArray damaged[] = {"",
                                  "rubbish",
                                  "<plist><dict>",
                                  sound.chopped(1),
                                  "<plist><array/></plist>",
                                  QByteArray(64, '\0')};
    int number = 0;
    for (const QByteArray& bytes : damaged) {
        overwrite(path, bytes);
        ::testing::internal::CaptureStderr();
        const auto store = openSuite();
        store->set(wind, 1);
        EXPECT_TRUE(store->synchronize());
        const std::string aside = ".corrupt-" + std::to_string(++number);
        EXPECT_THAT(::testing::internal::GetCapturedStderr(), oneLineWith(aside));
        EXPECT_EQ(contentOf(path + QString::fromStdString(aside)), bytes);
        EXPECT_EQ(openSuite()->integer(wind), 1);
    }
    EXPECT_EQ(contentOf(path + QStringLiteral(".corrupt-2")), damaged[1]);
}

TEST_F(SettingsFaults, AFileDamagedWhileTheStoreIsOpenIsKeptAside) {
    const auto store = openSuite();
    store->set(wind, 1);
    ::testing::internal::CaptureStderr();
    overwrite(path, "rubbish");
    EXPECT_TRUE(store->synchronize());
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), oneLineWith(".corrupt-1"));
    EXPECT_EQ(contentOf(path + QStringLiteral(".corrupt-1")), QByteArray("rubbish"));
}

TEST_F(SettingsFaults, WhatIsNoFileIsLeftAlone) {
    const QByteArray name = QFile::encodeName(path);
    for (const bool pipe : {false, true}) {
        QFile::remove(path);
        ASSERT_EQ(pipe ? ::mkfifo(name.constData(), 0600) : ::mkdir(name.constData(), 0700), 0);
        ::testing::internal::CaptureStderr();
        const auto store = openSuite();
        store->set(wind, 1);
        EXPECT_FALSE(store->synchronize());
        EXPECT_FALSE(store->synchronize());
        EXPECT_EQ(store->integer(wind), 1);
        EXPECT_THAT(::testing::internal::GetCapturedStderr(), oneLineWith("cannot be read"));
        ASSERT_EQ(std::remove(name.constData()), 0);
        EXPECT_TRUE(store->synchronize());
        EXPECT_EQ(openSuite()->integer(wind), 1);
    }
}

TEST_F(SettingsFaults, APipeBesideTheFileHoldsNobody) {
    for (const char* name : {".lock", ".new"}) {
        ASSERT_EQ(::mkfifo(QFile::encodeName(path + QLatin1String(name)).constData(), 0600), 0);
        const auto store = openSuite();
        store->set(wind, 1);
        static_cast<void>(store->synchronize());  // comes back, with or without success
        EXPECT_EQ(store->integer(wind), 1);
        ASSERT_TRUE(QFile::remove(path + QLatin1String(name)));
    }
}

TEST_F(SettingsFaults, AnUnreadableFileIsLeftAlone) {
    const auto scenario = [&] {
        dropCapabilities();
        overwrite(path, sound);
        allow(path, 0);
        const auto store = openSuite();
        store->set(wind, 1);
        require(!store->synchronize() && !store->synchronize(), 1);
        require(store->integer(wind) == 1 && store->integer(city) == 0, 2);
        allow(path, 0600);
        require(contentOf(path) == sound, 3);
        require(store->synchronize() && store->integer(city) == 7, 4);
        std::_Exit(openSuite()->integer(wind) == 1 ? 0 : 5);
    };
    EXPECT_EXIT(scenario(), ExitedWithCode(0), oneLineWith("cannot be read (Permission denied)"));
}

TEST_F(SettingsFaults, AReadOnlyFolderIsReadAndToldOnce) {
    const auto scenario = [&] {
        dropCapabilities();
        overwrite(path, sound);
        allow(folder.path(), 0500);
        const auto store = openSuite();
        require(store->integer(city) == 7, 1);
        store->set(wind, 1);
        require(!store->synchronize() && !store->synchronize(), 2);
        require(store->integer(wind) == 1 && contentOf(path) == sound, 3);
        allow(folder.path(), 0700);
        std::_Exit(store->synchronize() && openSuite()->integer(wind) == 1 ? 0 : 4);
    };
    EXPECT_EXIT(scenario(), ExitedWithCode(0),
                oneLineWith("cannot be written (Permission denied)"));
}

TEST_F(SettingsFaults, ADamagedFileInAReadOnlyFolderIsNotOverwritten) {
    const auto scenario = [&] {
        dropCapabilities();
        overwrite(path, "rubbish");
        allow(folder.path(), 0500);
        const auto store = openSuite();
        store->set(wind, 1);
        require(store->integer(wind) == 1 && !store->synchronize(), 1);
        std::_Exit(contentOf(path) == "rubbish" ? 0 : 2);
    };
    EXPECT_EXIT(scenario(), ExitedWithCode(0), HasSubstr("is damaged"));
}

/// A process may write files of at most 1000 bytes: writing fails in the middle, as on a full disk.
TEST_F(SettingsFaults, AFullDiskKeepsTheOldFileAndIsTriedAgain) {
    const auto scenario = [&] {
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        overwrite(path, sound);
        const auto store = openSuite();
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = 1000;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        store->set(wind, QString(5000, QLatin1Char('x')));
        QCoreApplication::processEvents();
        require(contentOf(path) == sound, 1);
        require(QDir(folder.path()).entryList(QDir::Files).size() == 2, 2);
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        while (contentOf(path) == sound)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        std::_Exit(openSuite()->object(wind).toString().size() == 5000 ? 0 : 3);
    };
    EXPECT_EXIT(scenario(), ExitedWithCode(0), oneLineWith("cannot be written (File too large)"));
}

TEST_F(SettingsFaults, AHeldLockCostsLessThanASecond) {
    const QByteArray lockPath = QFile::encodeName(path + QStringLiteral(".lock"));
    const auto store = openSuite();
    const int lock = ::open(lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    store->set(wind, 1);
    ::testing::internal::CaptureStderr();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(store->synchronize());
    const std::chrono::duration<double> waited = std::chrono::steady_clock::now() - start;
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), oneLineWith("is locked"));
    EXPECT_LT(waited.count(), 1.0);
    ::close(lock);
    EXPECT_TRUE(store->synchronize());
    EXPECT_EQ(openSuite()->integer(wind), 1);
}

/// The standard store is written when the process ends, when the application is long gone.
TEST_F(SettingsFaults, TheStandardStoreIsWrittenAtTheEndOfTheProcess) {
    static QString file;
    const auto scenario = [] {
        std::atexit([] { std::_Exit(contentOf(file).contains("<integer>5</integer>") ? 0 : 1); });
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        UserDefaults& store = UserDefaults::standard();
        file = store.fileName();
        QObject::connect(&store, &UserDefaults::changedByOthers, [] {});
        QCoreApplication::processEvents();
        store.set(wind, 5);
        // Read again at the very end, when much of Qt has ended already.
        overwrite(file,
                  "<plist><dict><key>when</key><date>2015-06-01T10:00:00Z</date></dict></plist>");
    };
    EXPECT_EXIT((scenario(), std::exit(2)), ExitedWithCode(0), IsEmpty());
}

}  // namespace
}  // namespace zephyrix
