// The real program, asked over a real connection.
#include <csignal>

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"
#include "support/DataLines.h"
#include "support/Programs.h"
#include "support/TestHome.h"
#include "weather/FakeService.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const QString program = QStringLiteral(PROGRAM_DIR "/zephyrix-feedd");

/// A running feed server; ended with the object.
class FeedProgram {
  public:
    explicit FeedProgram(const QStringList& arguments = {}) {
        process.start(program, arguments);
        process.waitForReadyRead();
        const QString line = QString::fromUtf8(process.readLine());
        const QRegularExpression form(QStringLiteral("^listening on http://127.0.0.1:(\\d+)/\n$"));
        port = form.match(line).captured(1).toUShort();
        EXPECT_NE(port, 0) << line.toStdString();
    }
    ~FeedProgram() {
        process.kill();
        process.waitForFinished();
    }
    FeedProgram(const FeedProgram&) = delete;
    FeedProgram& operator=(const FeedProgram&) = delete;

    /// The whole answer to a request line with no headers but the host and those given.
    [[nodiscard]] QByteArray answerTo(const QByteArray& methodAndPath,
                                      const QByteArray& headers = {}) const {
        QTcpSocket socket;
        socket.connectToHost(QStringLiteral("127.0.0.1"), port);
        socket.write(methodAndPath + " HTTP/1.1\r\nHost: localhost\r\n" + headers + "\r\n");
        while (socket.state() != QTcpSocket::UnconnectedState && socket.waitForReadyRead(5000)) {
        }
        return socket.readAll();
    }

    [[nodiscard]] QJsonObject lastObsOf(const QByteArray& lid) const {
        const QByteArray answer = answerTo("GET /zephyrix/WeatherFeed.php?lid=" + lid);
        const QJsonObject document =
            QJsonDocument::fromJson(answer.mid(answer.indexOf("\r\n\r\n") + 4)).object();
        return document[QStringLiteral("obs")].toObject()[QStringLiteral("lastObs")].toObject();
    }

    [[nodiscard]] QString offsetOf(const QByteArray& lid) const {
        return lastObsOf(lid)[QStringLiteral("datetime")].toString().right(6);
    }

    QProcess process;
    quint16 port = 0;
};

int statusOf(const QByteArray& answer) {
    return answer.startsWith("HTTP/1.1 ") ? answer.mid(9, 3).toInt() : 0;
}

TEST(FeedProgram, AnswersThePanelsRequest) {
    const FeedProgram feed;
    const QByteArray answer =
        feed.answerTo("GET /zephyrix/WeatherFeed.php?lid=18228265&json=1&widget=1");
    EXPECT_EQ(statusOf(answer), 200);
    for (const char* header :
         {"\r\nContent-Type: application/json\r\n", "\r\nCache-Control: public, max-age=",
          "\r\nX-Zephyrix-Weather: demonstration\r\n", "\r\nVary: Accept-Encoding\r\n"})
        EXPECT_TRUE(answer.contains(header)) << header << " in " << answer.toStdString();
    EXPECT_EQ(feed.lastObsOf("18228265")[QStringLiteral("source")],
              QStringLiteral("demonstration"));
}

QByteArray headerIn(const QByteArray& answer, const QByteArray& name) {
    const qsizetype begin = answer.indexOf("\r\n" + name + ": ") + name.size() + 4;
    return answer.mid(begin, answer.indexOf("\r\n", begin) - begin);
}

TEST(FeedProgram, SendsADocumentOnlyToThoseWhoDoNotHaveIt) {
    const FeedProgram feed({QStringLiteral("--scenario"), QStringLiteral("rain")});
    const QByteArray request = "GET /zephyrix/WeatherFeed.php?lid=5";
    QByteArray whole = feed.answerTo(request);
    if (headerIn(whole, "Cache-Control") == "public, max-age=0" ||
        headerIn(whole, "Cache-Control") == "public, max-age=1")
        whole = feed.answerTo(request);  // the demonstration's hour is about to end
    const QByteArray tag = headerIn(whole, "ETag");
    const QByteArray modified = headerIn(whole, "Last-Modified");
    ASSERT_TRUE(tag.startsWith("W/\"")) << whole.toStdString();
    struct Case {
        QByteArray headers;
        int status;
    };
    for (const Case& c : {
             Case{"If-None-Match: " + tag + "\r\n", 304},
             Case{"If-None-Match: \"other\", " + tag.mid(2) + "\r\n", 304},
             Case{"If-None-Match: *\r\n", 304},
             Case{"If-None-Match: \"other\"\r\n", 200},
             Case{"If-Modified-Since: " + modified + "\r\n", 304},
             Case{"If-Modified-Since: Mon, 01 Jun 2015 12:00:00 GMT\r\n", 200},
             Case{"If-Modified-Since: yesterday\r\n", 200},
             // The tag alone counts where both are given.
             Case{"If-None-Match: \"other\"\r\nIf-Modified-Since: " + modified + "\r\n", 200},
         }) {
        const QByteArray answer = feed.answerTo(request, c.headers);
        EXPECT_EQ(statusOf(answer), c.status) << c.headers.toStdString();
        EXPECT_EQ(answer.contains("lastObs"), c.status == 200) << c.headers.toStdString();
        EXPECT_EQ(headerIn(answer, "ETag"), tag) << c.headers.toStdString();
    }
}

TEST(FeedProgram, TellsWhatIsWrongWithARequest) {
    FeedProgram feed;
    forEachLine("feed/requests.tsv", [&](const DataLine& line) {
        const QByteArray answer = feed.answerTo(line.utf8(0));
        EXPECT_EQ(statusOf(answer), line.integer(1));
        EXPECT_EQ(answer.contains("{\"error\":\""), line[1] != u"200");
    });
    // A path as long as the server takes, and one that is longer.
    EXPECT_EQ(statusOf(feed.answerTo("GET /" + QByteArray(8000, 'a'))), 404);
    EXPECT_EQ(statusOf(feed.answerTo("GET /" + QByteArray(9000, 'a'))), 414);

    feed.process.terminate();
    EXPECT_TRUE(feed.process.waitForFinished(5000));
    const QByteArray log = feed.process.readAllStandardError();
    EXPECT_EQ(log.count('\n'), 16) << log.toStdString();
    const QRegularExpression line(
        QStringLiteral("^20\\d\\d-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ GET /%1%0a%25 404 \\d+$"),
        QRegularExpression::MultilineOption);
    EXPECT_TRUE(line.match(QString::fromUtf8(log)).hasMatch()) << log.toStdString();
}

TEST(FeedProgram, KnowsThePlaceBehindAnId) {
    qputenv("XDG_CONFIG_HOME", testing::freshFolder().toUtf8());
    const FeedProgram feed;
    EXPECT_EQ(feed.offsetOf("77").right(3), QStringLiteral(":00"));
    {
        LocationResult place;
        place.setUid(Number(77));
        place.setName(QStringLiteral("Kathmandu"));
        place.setLatitude(Number(27.7));
        place.setLongitude(Number(85.3));
        place.setTimezone(QStringLiteral("Asia/Kathmandu"));
        UserDefaults::suite(QStringLiteral("group.Zephyrix"))
            ->set(QStringLiteral("location"), place.asDict());
    }
    EXPECT_EQ(feed.offsetOf("77"), QStringLiteral("+05:45"));  // chosen while the server runs
    EXPECT_EQ(feed.offsetOf("78"), feed.offsetOf("78"));
    EXPECT_NE(feed.offsetOf("78"), QStringLiteral("+05:45"));

    const FeedProgram fixed({QStringLiteral("--latitude=-43.95"), QStringLiteral("--longitude"),
                             QStringLiteral("-176.55"), QStringLiteral("--zone"),
                             QStringLiteral("Pacific/Marquesas")});
    EXPECT_EQ(fixed.offsetOf("77"), QStringLiteral("-09:30"));
}

TEST(FeedProgram, AsksTheServiceThatTheSettingsName) {
    qputenv("XDG_CONFIG_HOME", testing::freshFolder().toUtf8());
    qputenv("XDG_CACHE_HOME", testing::freshFolder().toUtf8());
    const auto settings = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    settings->set(QStringLiteral("weatherSource"), QStringLiteral("open-meteo"));
    ASSERT_TRUE(settings->synchronize());
    testing::FakeService service([](const httplib::Request&, httplib::Response& response) {
        const QByteArray now = QByteArray::number(QDateTime::currentSecsSinceEpoch());
        response.set_content(
            R"({"current":{"temperature_2m":-7.5,"time":)" + now.toStdString() + "}}",
            "application/json");
    });
    const FeedProgram feed({QStringLiteral("--source-address"),
                            QStringLiteral("open-meteo=") + service.address().toString()});
    for (int i = 0; i < 3; ++i) {
        const QJsonObject lastObs = feed.lastObsOf("18228265");
        EXPECT_EQ(lastObs[QStringLiteral("tt")], -7.5);
        EXPECT_EQ(lastObs[QStringLiteral("source")], QStringLiteral("Open-Meteo"));
        EXPECT_EQ(lastObs[QStringLiteral("licence")],
                  QStringLiteral("Weather data by Open-Meteo.com (CC BY 4.0)"));
    }
    EXPECT_EQ(service.count(), 1U);
    EXPECT_EQ(service.last().get_header_value("User-Agent").substr(0, 15), "zephyrix-feedd/");
    // Real weather of an invented place would be a lie.
    EXPECT_EQ(statusOf(feed.answerTo("GET /zephyrix/WeatherFeed.php?lid=5")), 404);
    // What is asked for on the command line comes first.
    EXPECT_EQ(FeedProgram({QStringLiteral("--source"), QStringLiteral("demo")})
                  .lastObsOf("5")[QStringLiteral("source")],
              QStringLiteral("demonstration"));
}

TEST(FeedProgram, KeepsAConnectionOnlyWhileOthersAreServed) {
    const FeedProgram feed;
    const QByteArray request = "GET / HTTP/1.1\r\nHost: localhost\r\n\r\n";
    EXPECT_TRUE(feed.answerTo("GET /").contains("\r\nConnection: close\r\n")) << "it is alone";

    QTcpSocket other;  // that is still to ask
    other.connectToHost(QStringLiteral("127.0.0.1"), feed.port);
    ASSERT_TRUE(other.waitForConnected(5000));
    struct Case {
        const char* why;
        QByteArrayList writings;
        int answers;
        bool isKept;
    };
    for (const Case& c : {
             Case{"one after the other", {request, request}, 2, true},
             Case{"together, and the half of a third", {request + request + "GET"}, 2, true},
             Case{"at the client's wish",
                  {"GET / HTTP/1.1\r\nConnection: close\r\n\r\n" + request},
                  1,
                  false},
             Case{"an old client", {"GET / HTTP/1.0\r\n\r\n" + request}, 1, false},
             // Else a body could pass for a request, and its answer for somebody else's.
             Case{"with a body",
                  {"GET / HTTP/1.1\r\nContent-Length: 43\r\n\r\n" + request},
                  1,
                  false},
             Case{"with a body of parts",
                  {"GET / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n" + request},
                  1,
                  false},
             Case{"not understood", {"nonsense\r\n" + request}, 1, false},
         }) {
        QTcpSocket socket;
        socket.connectToHost(QStringLiteral("127.0.0.1"), feed.port);
        QByteArray heard;
        const auto listen = [&](int answers) {
            while (heard.count("\"}") < answers && socket.waitForReadyRead(5000))
                heard += socket.readAll();
        };
        for (qsizetype i = 0; i < c.writings.size(); ++i) {
            socket.write(c.writings.at(i));
            listen(c.answers - static_cast<int>(c.writings.size() - 1 - i));
        }
        if (!c.isKept)
            listen(c.answers + 1);  // until the end
        EXPECT_EQ(socket.state() == QTcpSocket::ConnectedState, c.isKept) << c.why;
        EXPECT_EQ(heard.count("HTTP/1.1 4"), c.answers) << c.why << ": " << heard.toStdString();
    }
}

TEST(FeedProgram, IsOnThisMachineOnlyAndSharesItsPortWithNobody) {
    const FeedProgram feed;
    QTcpSocket other;
    other.connectToHost(QStringLiteral("127.0.0.2"), feed.port);
    EXPECT_FALSE(other.waitForConnected(1000));

    const Outcome second = runOurs(QStringLiteral("zephyrix-feedd --port %1").arg(feed.port));
    EXPECT_EQ(second.exitCode, 1);
    EXPECT_TRUE(second.err.contains(QByteArray::number(feed.port))) << second.err.toStdString();
}

TEST(FeedProgram, EndsAtOnce) {
    struct Case {
        const char* how;
        QStringList arguments;
        std::function<void(QProcess&)> end;
    };
    const auto signal = [](int number) {
        return [number](QProcess& process) {
            ::kill(static_cast<pid_t>(process.processId()), number);
        };
    };
    for (const Case& c :
         {Case{"SIGTERM", {}, signal(SIGTERM)}, Case{"SIGINT", {}, signal(SIGINT)},
          Case{"end of input", {QStringLiteral("--end-with-input")}, [](QProcess& process) {
                   process.closeWriteChannel();
               }}}) {
        FeedProgram feed(c.arguments);
        QTcpSocket halfAsked;  // must not hold it up
        halfAsked.connectToHost(QStringLiteral("127.0.0.1"), feed.port);
        halfAsked.write("GET /zephyrix/Wea");
        EXPECT_TRUE(halfAsked.waitForBytesWritten(1000));
        EXPECT_EQ(statusOf(feed.answerTo("GET /", "Connection: close\r\n")), 404);
        QElapsedTimer timer;
        timer.start();
        c.end(feed.process);
        EXPECT_TRUE(feed.process.waitForFinished(5000)) << c.how;
        EXPECT_EQ(feed.process.exitStatus(), QProcess::NormalExit) << c.how;
        EXPECT_EQ(feed.process.exitCode(), 0) << c.how;
        EXPECT_LT(timer.elapsed(), 3000) << c.how;  // a half request is given five seconds
    }
}

TEST(FeedProgram, TellsWhatIsWrongWithItsOptions) {
    forEachLine("feed/bad_options.tsv", [](const DataLine& line) {
        const Outcome outcome = runOurs(QStringLiteral("zephyrix-feedd ") + line[0]);
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_TRUE(outcome.err.contains(line.utf8(1))) << outcome.err.toStdString();
    });
}

}  // namespace
}  // namespace zephyrix
