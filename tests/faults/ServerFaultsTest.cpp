// What a feed can do to the panel. Silence and trickles, which take their time, are tested with
// shorter limits at FeedRequest.
#include <array>
#include <sys/resource.h>

#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AgedPanel.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;

constexpr qint64 mebibyte = 1024 * 1024;

/// The most memory that any panel of this test has held, in bytes.
qint64 largestPanel() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss * 1024;
}

/// Forgets the most memory that this process has held, which a child counts as its own.
void resetPeakMemory() {
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    EXPECT_TRUE(peak.open(QIODevice::WriteOnly) && peak.write("5") == 1);
}

class ServerFaults : public AgedPanel {
  protected:
    /// The panel shows the document that it had, keeps it, and says in one line why.
    void expectKept(const QVariant& before, const Outcome& result, const char* what,
                    const char* told) {
        SCOPED_TRACE(what);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.out.toStdString(), HasSubstr("7°C"));
        EXPECT_EQ(document(), before);
        const auto lines = troubles(result.err);
        ASSERT_EQ(lines.size(), 1) << result.err.toStdString();
        EXPECT_THAT(lines.first().toStdString(), HasSubstr(told));
    }
};

struct Fault {
    const char* what;
    LoopbackServer::Answer answer;
    const char* told;
};

TEST_F(ServerFaults, LeaveTheDocumentThatWasThere) {
    const QByteArray whole = feedDocument(21.0, Clock::now());
    const auto redirect = [](const QString& to) {
        return answerBody("", 302, "Location: " + to.toUtf8() + "\r\n");
    };
    const std::array faults{
        Fault{"no answer", answerRaw(""), "Transport error"},
        Fault{"another protocol", answerRaw("SSH-2.0-OpenSSH_9.2\r\n"), "Transport error"},
        Fault{"shorter than it says",
              answerRaw("HTTP/1.1 200 OK\r\nContent-Length: 9999\r\n\r\n" + whole),
              "Transport error"},
        Fault{"longer than it says",
              answerRaw("HTTP/1.1 200 OK\r\nContent-Length: 20\r\n\r\n" + whole), "JSON error"},
        Fault{"length that is none", answerRaw("HTTP/1.1 200 OK\r\nContent-Length: -5\r\n\r\n{"),
              "JSON error"},
        Fault{"redirects to itself", redirect(server_.baseAddress()), "again and again"},
        Fault{"redirects to a file", redirect(QStringLiteral("file:///etc/hostname")),
              "redirects to file:///etc/hostname"},
        Fault{"redirects to plain http elsewhere", redirect(QStringLiteral("http://example.org/")),
              "redirects to http://example.org/"},
        Fault{"404 in HTML", answerBody("<html>", 404), "JSON error"},
        Fault{"500 in HTML", answerBody("<html>", 500), "JSON error"},
        Fault{"200 in HTML", answerBody("<html>"), "JSON error"},
        Fault{"100 MiB", answerManyBytes(100 * mebibyte), "too large"},
        Fault{"100 MiB in 100 kB", answerCompressedZeros(100 * mebibyte), "Transport error"},
    };
    resetPeakMemory();
    EXPECT_THAT(report().out.toStdString(), HasSubstr("21°C")) << "all is well";
    const qint64 usual = largestPanel();
    const QVariant before = age();
    for (const Fault& fault : faults) {
        server_.answerWith(fault.answer);
        resetPeakMemory();  // the server's own, while it had more to send than was taken
        expectKept(before, report(), fault.what, fault.told);
    }
    server_.refuse();
    resetPeakMemory();
    expectKept(before, report(), "refuses", "Transport error 1: Connection refused");

    const qint64 grown = largestPanel() - usual;
    std::printf("largest panel %.1f MiB, %.1f MiB more than usual\n",
                static_cast<double>(usual + grown) / mebibyte,
                static_cast<double>(grown) / mebibyte);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)  // they keep freed memory
    // Of zeros, the 64 KiB that the toolkit reads at a time can be 64 MiB when they are unpacked.
    EXPECT_LT(grown, 80 * mebibyte);
#endif
}

// Deliberately so: a status is not looked at, and an answer without an observation is one.
TEST_F(ServerFaults, AnswerWithoutAnObservationIsTakenAtItsWord) {
    for (const Fault& fault : {
             Fault{"204", answerRaw("HTTP/1.1 204 No Content\r\n\r\n"), ""},
             Fault{"304", answerRaw("HTTP/1.1 304 Not Modified\r\n\r\n"), ""},
             Fault{"503 in JSON", answerBody(R"({"error": "not now"})", 503), ""},
         }) {
        SCOPED_TRACE(fault.what);
        age();
        server_.answerWith(fault.answer);
        const auto result = report();
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.out.toStdString(), ::testing::Not(HasSubstr("a test")));
        EXPECT_EQ(troubles(result.err), QList<QByteArray>());

        // The stored document stops one start, and is then set aside.
        server_.answerWith(answerBody(feedDocument(21.0, Clock::now())));
        const auto stopped = report();
        EXPECT_EQ(stopped.exitCode, -1);
        EXPECT_THAT(stopped.err.toStdString(), HasSubstr("fatal error: "));
        const auto next = report();
        EXPECT_EQ(next.exitCode, 0);
        EXPECT_THAT(next.out.toStdString(), HasSubstr("21°C"));
        EXPECT_EQ(troubles(next.err).size(), 1);
    }
}

}  // namespace
}  // namespace zephyrix
