#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTcpSocket>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PanelProgram.h"
#include "foundation/Clock.h"
#include "support/Documents.h"
#include "support/LoopbackServer.h"
#include "support/ThreadSanitizer.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;
using ::testing::Not;

const QString documentKey = QStringLiteral("lastWeatherData");

class PanelProgramTest : public ::testing::Test {
  protected:
    Outcome run(const QString& words) {
        return panel_.run(words + QStringLiteral(" --feed ") + server_.baseAddress());
    }
    static QString temperature(const Outcome& result) {
        return result.json()[QLatin1String("rows")][0][QLatin1String("temperature")].toString();
    }

    PanelProgram panel_;
    LoopbackServer server_{answerBody(feedDocument(21.0, Clock::now()))};
};

TEST_F(PanelProgramTest, WithoutAPlaceItAsksForOne) {
    const auto result = run(QStringLiteral("--text"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "Please open Zephyrix to activate the widget.\n");
    EXPECT_TRUE(server_.requestLines().isEmpty());
}

TEST_F(PanelProgramTest, ShowsTheFetchedWeatherAndASecondStartAsksForNothing) {
    panel_.choosePlace();
    const auto first = run(QStringLiteral("--json --expanded"));
    EXPECT_EQ(first.exitCode, 0) << first.err.toStdString();
    const QJsonObject report = first.json();
    EXPECT_EQ(report[QLatin1String("source")], QStringLiteral("a test"));
    const QJsonValue row = report[QLatin1String("rows")][0];
    EXPECT_EQ(row[QLatin1String("place")], QStringLiteral("Berlin"));
    EXPECT_THAT(temperature(first).toStdString(), HasSubstr("21"));
    EXPECT_EQ(row[QLatin1String("wind")][QLatin1String("direction")], 240);
    const QJsonArray days = report[QLatin1String("rows")][1][QLatin1String("days")].toArray();
    ASSERT_EQ(days.size(), 5) << "440 points wide";
    EXPECT_THAT(days[0][QLatin1String("high")].toString().toStdString(), HasSubstr("10"));
    EXPECT_EQ(server_.requestLines().size(), 1);

    const auto second = run(QStringLiteral("--json"));
    EXPECT_EQ(temperature(second), temperature(first));
    EXPECT_EQ(second.json()[QLatin1String("rows")].toArray().size(), 1) << "--expanded is not kept";
    EXPECT_EQ(server_.requestLines().size(), 1);
}

TEST_F(PanelProgramTest, FeedServerOfTheSettingsIsUsed) {
    panel_.choosePlace();
    panel_.setSetting(QStringLiteral("feedServer"), server_.baseAddress().chopped(1));
    panel_.run(QStringLiteral("--text"));
    EXPECT_EQ(server_.requestLines().size(), 1);
    panel_.setSetting(documentKey, {});
    panel_.setSetting(QStringLiteral("feedServer"), QStringLiteral("ftp://127.0.0.1/"));
    EXPECT_THAT(panel_.run(QStringLiteral("--text")).err.toStdString(), HasSubstr("QK error -1"));
}

TEST_F(PanelProgramTest, DemonstrationWeatherIsCalledThat) {
    if (threadSanitized)
        GTEST_SKIP() << "the thread sanitizer cannot follow the panel past the start of its feed";
    panel_.choosePlace();
    const auto result = panel_.run(QStringLiteral("--text"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.out.toLower().toStdString(), HasSubstr("demonstration"));
    EXPECT_THAT(result.err.toStdString(), HasSubstr("demonstration weather"));
}

TEST_F(PanelProgramTest, NamesWhoTellsTheWeatherAlsoAfterANewStart) {
    panel_.choosePlace();
    server_.answerWith(answerBody(feedDocument(21.0, Clock::now())
                                      .replace("a test\"",
                                               "A Service\", \"licence\": \"CC BY\", "
                                               "\"fetched\": \"2026-06-01\"")));
    for (int start = 0; start < 2; ++start) {
        const auto text = run(QStringLiteral("--text"));
        EXPECT_TRUE(text.out.endsWith("(A Service)\nCC BY\n")) << text.out.toStdString();
        const QJsonObject report = run(QStringLiteral("--json")).json();
        EXPECT_EQ(report[QLatin1String("licence")], QStringLiteral("CC BY"));
        EXPECT_EQ(report[QLatin1String("fetched")], QStringLiteral("2026-06-01"));
    }
    EXPECT_EQ(server_.requestLines().size(), 1);
}

TEST_F(PanelProgramTest, PictureHasTheSizeThatWasAskedFor) {
    panel_.choosePlace();
    const QString file = panel_.home() + QStringLiteral("/panel.png");
    const auto result =
        run(QStringLiteral("--snapshot %1 --width 360 --scale 1.5 --expanded").arg(file));
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QImage picture(file);
    EXPECT_EQ(picture.width(), 540);
    EXPECT_GE(picture.height(), qRound(1.5 * (110 + 104 + 36)));
    EXPECT_EQ(run(QStringLiteral("--snapshot /nowhere/p.png")).exitCode, 1);
}

TEST_F(PanelProgramTest, CommandLineAloneNeedsNothing) {
    EXPECT_THAT(panel_.run(QStringLiteral("--help")).out.toStdString(), HasSubstr("--snapshot"));
    EXPECT_THAT(panel_.run(QStringLiteral("--version")).out.toStdString(),
                HasSubstr("zephyrix-panel "));
    const auto bad = panel_.run(QStringLiteral("--wide"));
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_THAT(bad.err.toStdString(), HasSubstr("wide"));
    EXPECT_FALSE(QDir(panel_.home() + QStringLiteral("/config")).exists()) << "nothing is written";
}

class PanelWindowTest : public PanelProgramTest {
  protected:
    /// A window without a screen that anyone sees, when its first fetch has begun.
    void open(const QString& words) {
        panel_.start(process_, QProcess::splitCommand(words));
        QObject::connect(&process_, &QProcess::readyReadStandardError, &process_,
                         [this] { log_ += process_.readAllStandardError(); });
        EXPECT_TRUE(waitUntil([this] { return log_.contains("age of the weather data"); }));
    }
    void expectEnd(int signal) {
        ::kill(static_cast<pid_t>(process_.processId()), signal);
        ASSERT_TRUE(waitUntil([this] { return process_.state() == QProcess::NotRunning; }));
    }

    QProcess process_;
    QByteArray log_;
};

/// Its libraries take longer to load than the panel to show the weather that it has.
TEST_F(PanelWindowTest, NetworkIsLoadedByTheFirstFetchOnly) {
    panel_.choosePlace();
    const QString arguments = QStringLiteral("--window --feed ") + server_.baseAddress();
    const auto isNetworkLoaded = [this] {
        QFile maps(QStringLiteral("/proc/%1/maps").arg(process_.processId()));
        EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
        const QByteArray files = maps.readAll();
        EXPECT_TRUE(files.contains("/libQt6Widgets.so"));
        EXPECT_EQ(files.contains("/zephyrix-network.so"), files.contains("/libQt6Network.so"));
        return files.contains("/libQt6Network.so");
    };
    open(arguments);
    ASSERT_TRUE(waitUntil([this] { return panel_.setting(documentKey).isValid(); }));
    EXPECT_TRUE(isNetworkLoaded());
    expectEnd(SIGTERM);
    log_.clear();
    open(arguments);
    EXPECT_FALSE(isNetworkLoaded()) << "the document is young";
    expectEnd(SIGTERM);
    EXPECT_EQ(server_.requestLines().size(), 1);
}

TEST_F(PanelWindowTest, SignalEndsItInOrderAndWritesNoDocument) {
    panel_.choosePlace();
    server_.answerWith(answerNothing());
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        panel_.setSetting(QStringLiteral("showingAll"), {});
        open(QStringLiteral("--window --expanded --feed ") + server_.baseAddress());
        expectEnd(signal);
        EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit) << signal;
        EXPECT_EQ(process_.exitCode(), 0) << signal;
        EXPECT_EQ(panel_.setting(QStringLiteral("showingAll")), true) << signal;
        EXPECT_FALSE(panel_.setting(documentKey).isValid()) << signal;
        log_.clear();
    }
}

TEST_F(PanelWindowTest, ItsFeedEndsWithItHoweverItEnds) {
    panel_.choosePlace();
    for (const int signal : {SIGTERM, SIGKILL}) {
        panel_.setSetting(documentKey, {});
        open(QStringLiteral("--window"));
        static const QRegularExpression address(QStringLiteral("127\\.0\\.0\\.1:([0-9]+)"));
        QRegularExpressionMatch match;
        ASSERT_TRUE(waitUntil([&] {
            match = address.match(QString::fromUtf8(log_));
            return match.hasMatch();
        }));
        expectEnd(signal);
        EXPECT_TRUE(waitUntil([&] {
            QTcpSocket socket;
            socket.connectToHost(QStringLiteral("127.0.0.1"), match.captured(1).toUShort());
            return !socket.waitForConnected();
        })) << signal;
        log_.clear();
    }
}

/// A bar that reads one line after the other.
class Bar {
  public:
    Bar(const PanelProgram& panel, const QString& feed, const QString& pipe = {}) {
        if (!pipe.isEmpty())
            process_.setStandardOutputFile(pipe);
        panel.start(process_, {QStringLiteral("--format"), QStringLiteral("{temperature} {place}"),
                               QStringLiteral("--follow"), QStringLiteral("--feed"), feed});
    }
    ~Bar() { process_.kill(); }
    QByteArray nextLine() {
        EXPECT_TRUE(waitUntil([this] {
            process_.waitForReadyRead(1);
            return process_.canReadLine();
        }));
        return process_.readLine().trimmed();
    }
    void terminate() { process_.terminate(); }
    [[nodiscard]] bool hasEndedWell() {
        return waitUntil([this] { return process_.state() == QProcess::NotRunning; }) &&
               process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
    }
    [[nodiscard]] bool saysNothingMore() {
        process_.waitForReadyRead(1);
        return process_.bytesAvailable() == 0;
    }

  private:
    QProcess process_;
};

TEST_F(PanelProgramTest, FollowsWhatABarShows) {
    panel_.choosePlace();
    Bar bar(panel_, server_.baseAddress());
    EXPECT_EQ(bar.nextLine(), "21°C Berlin") << "the first line waits for the weather";
    EXPECT_EQ(runOurs(QStringLiteral("zephyrix units temperature F")).exitCode, 0);
    EXPECT_EQ(bar.nextLine(), "70°F Berlin");
    EXPECT_EQ(server_.requestLines().size(), 1) << "units need no fetch";
    // A unit that the line does not show changes nothing, another place fetches.
    EXPECT_EQ(runOurs(QStringLiteral("zephyrix units wind m/s")).exitCode, 0);
    EXPECT_EQ(runOurs(QStringLiteral("zephyrix place set --uid 77 --name Nome --lat 64.5 "
                                     "--lon -165.4 --zone America/Nome"))
                  .exitCode,
              0);
    EXPECT_EQ(bar.nextLine(), "70°F Nome");
    EXPECT_TRUE(bar.saysNothingMore());
    bar.terminate();
    EXPECT_TRUE(bar.hasEndedWell());
}

TEST_F(PanelProgramTest, EndsWhenTheBarGoesAway) {
    panel_.choosePlace();
    const QByteArray pipe = QFile::encodeName(panel_.home() + QStringLiteral("/bar"));
    ASSERT_EQ(::mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    Bar bar(panel_, server_.baseAddress(), QFile::decodeName(pipe));
    char line[64];
    EXPECT_TRUE(waitUntil([&] { return ::read(reader, line, sizeof line) > 0; }));
    ::close(reader);
    EXPECT_TRUE(bar.hasEndedWell());
    EXPECT_FALSE(panel_.setting(QStringLiteral("showingAll")).isValid())
        << "the bar does not speak for the panel";
}

}  // namespace
}  // namespace zephyrix
