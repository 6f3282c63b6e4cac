// Several processes at one suite: no key is lost, no file is torn, and each hears of the others.
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTimer>
#include <gtest/gtest.h>

#include "SettingsFolder.h"
#include "foundation/PropertyList.h"
#include "support/Files.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const QString wind = QStringLiteral("wind");

/// Another process, which does its work and ends without touching what it shares with this one.
class Process {
  public:
    explicit Process(const std::function<void()>& work) : id_(::fork()) {
        if (id_ != 0)
            return;
        work();
        std::_Exit(0);
    }
    ~Process() {
        if (id_ > 0)
            end();
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    void kill() const { ::kill(id_, SIGKILL); }
    /// Waits for its end; true when it ended well.
    bool end() {
        int status = -1;
        ::waitpid(std::exchange(id_, -1), &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

  private:
    pid_t id_;
};

double secondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(SettingsProcesses, TwoWritersLoseNoKey) {
    constexpr int keys = 300;
    const SettingsFolder folder;
    const auto writer = [](const QString& name) {
        const auto store = openSuite();
        for (int i = 0; i < keys; ++i) {
            store->set(name + QString::number(i), i);
            while (!store->synchronize()) {
            }
        }
    };
    const double seconds = secondsOf([&] {
        Process first([&] { writer(QStringLiteral("first")); });
        Process second([&] { writer(QStringLiteral("second")); });
        EXPECT_TRUE(first.end());
        EXPECT_TRUE(second.end());
    });
    std::printf("two writers, %d keys each: %.2f s\n", keys, seconds);
    const auto store = openSuite();
    for (int i = 0; i < keys; ++i)
        for (const char* name : {"first", "second"})
            ASSERT_EQ(store->object(QLatin1String(name) + QString::number(i)), QVariant(i));
}

TEST(SettingsProcesses, AKillInMidWriteTearsNothingAndStallsNobody) {
    constexpr int kills = 50;
    const SettingsFolder folder;
    const auto seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> moment(0, 4000);  // microseconds
    double slowest = 0.0;
    for (int i = 0; i < kills; ++i) {
        int ready[2];
        ASSERT_EQ(::pipe(ready), 0);
        Process victim([&] {
            const auto store = openSuite();
            for (int count = 0;; ++count) {
                store->set(QStringLiteral("count"), count);
                store->set(QStringLiteral("load"), QString(100 * (count % 500), QLatin1Char('x')));
                if (store->synchronize() && count == 0 && ::write(ready[1], "x", 1) != 1)
                    return;
            }
        });
        ::close(ready[1]);
        char byte = 0;
        ASSERT_EQ(::read(ready[0], &byte, 1), 1);
        ::close(ready[0]);
        std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
        victim.kill();
        victim.end();

        const auto store = openSuite();
        ASSERT_TRUE(PropertyList::read(contentOf(store->fileName()))) << "kill " << i;
        store->set(QStringLiteral("survivor%1").arg(i), i);
        bool saved = false;
        slowest = std::max(slowest, secondsOf([&] { saved = store->synchronize(); }));
        ASSERT_TRUE(saved);
    }
    std::printf("%d kills, slowest write after one: %.1f ms\n", kills, 1000.0 * slowest);
    EXPECT_LT(slowest, 1.0);
    const auto store = openSuite();
    for (int i = 0; i < kills; ++i)
        EXPECT_EQ(store->object(QStringLiteral("survivor%1").arg(i)), QVariant(i));
}

class ChangeNotice : public ::testing::Test {
  protected:
    ChangeNotice() {
        QObject::connect(store_.get(), &UserDefaults::changedByOthers, [this] { ++notices_; });
        QCoreApplication::processEvents();
    }

    /// Runs the event loop until the store says this value; false after ten seconds.
    bool hears(const QVariant& value) {
        bool late = false;
        QTimer deadline;
        deadline.setSingleShot(true);
        QObject::connect(&deadline, &QTimer::timeout, [&] { late = true; });
        deadline.start(10000);
        while (store_->object(wind) != value && !late)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return !late;
    }

    static void setElsewhere(int value) {
        Process other([=] { openSuite()->set(wind, value); });
        EXPECT_TRUE(other.end());
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    SettingsFolder folder_;
    std::unique_ptr<UserDefaults> store_ = openSuite();
    int notices_ = 0;
};

TEST_F(ChangeNotice, EachSaveOfAnotherProcessIsNoticed) {
    for (int value = 1; value <= 3; ++value) {  // the first makes the file, the others replace it
        setElsewhere(value);
        EXPECT_TRUE(hears(value));
    }
    overwrite(store_->fileName(),
              "<plist><dict><key>wind</key><integer>4</integer></dict></plist>");
    EXPECT_TRUE(hears(4)) << "written in place";
    EXPECT_GE(notices_, 4);
    ASSERT_TRUE(QFile::remove(store_->fileName()));
    EXPECT_TRUE(hears({}));
}

TEST_F(ChangeNotice, ThisStoresOwnSaveIsNone) {
    store_->set(wind, 1);
    ASSERT_TRUE(store_->synchronize());
    setElsewhere(2);
    EXPECT_TRUE(hears(2));
    EXPECT_EQ(notices_, 1);
}

TEST_F(ChangeNotice, AHalfWrittenFileIsNeitherTakenNorSetAside) {
    setElsewhere(1);
    ASSERT_TRUE(hears(1));
    const QByteArray whole = contentOf(store_->fileName());
    overwrite(store_->fileName(), whole.chopped(20));
    QCoreApplication::processEvents();
    EXPECT_EQ(store_->integer(wind), 1);
    EXPECT_EQ(contentOf(store_->fileName()), whole.chopped(20));
    overwrite(store_->fileName(), QByteArray(whole).replace("1<", "2<"));
    EXPECT_TRUE(hears(2));
}

}  // namespace
}  // namespace zephyrix
