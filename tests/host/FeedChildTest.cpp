#include <fcntl.h>
#include <memory>
#include <optional>
#include <unistd.h>

#include <QFile>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QUrl>
#include <gtest/gtest.h>

#include "host/FeedChild.h"
#include "support/Files.h"
#include "support/LoopbackServer.h"
#include "support/ScopedEnvironment.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

QString addressFrom(FeedChild& feed) {
    std::optional<QString> base;
    feed.address([&](const QString& address) { base = address; });
    EXPECT_TRUE(waitUntil([&] { return base.has_value(); }));
    return base.value_or(QString());
}

QString script(const QByteArray& commands) {
    const QString path = freshFolder() + QStringLiteral("/feed");
    overwrite(path, "#!/bin/sh\n" + commands);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

/// A program that prints this line and then waits.
QString programPrinting(const char* line) {
    return script(QByteArray("echo '") + line + "'\nread nothing\n");
}

bool listens(const QString& base) {
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(QUrl(base).port()));
    return socket.waitForConnected();
}

TEST(FeedChild, RunsFromTheFirstNeedToItsEnd) {
    auto feed = std::make_unique<FeedChild>(QStringLiteral(PROGRAM_DIR "/zephyrix-feedd"));
    const QString base = addressFrom(*feed);
    EXPECT_TRUE(listens(base)) << base.toStdString();
    EXPECT_EQ(addressFrom(*feed), base);
    feed.reset();
    EXPECT_FALSE(listens(base));
}

TEST(FeedChild, GetsNoMoreThanItNeeds) {
    const ScopedEnvironment ours{{"TZ", "Asia/Tokyo"}, {"SSH_AUTH_SOCK", "/nowhere"}};
    const int inherited = ::fcntl(STDERR_FILENO, F_DUPFD, 50);  // deliberately not close-on-exec
    ASSERT_GE(inherited, 50);
    const QString told = freshFolder() + QStringLiteral("/told");
    FeedChild feed(
        script(QStringLiteral("ls /proc/$$/fd > %1; tr '\\0' '\\n' < /proc/$$/environ >> %1\n"
                              "grep NoNewPrivs /proc/$$/status >> %1\n"
                              "readlink /proc/$$/cwd >> %1; echo 4711; read nothing\n")
                   .arg(told)
                   .toUtf8()));
    addressFrom(feed);
    ::close(inherited);
    QList<QByteArray> lines = contentOf(told).trimmed().split('\n');
    EXPECT_EQ(lines.takeLast(), "/");
    EXPECT_EQ(lines.takeLast(), "NoNewPrivs:\t1");
    for (const char* needed : {"TZ=Asia/Tokyo", "LANG=en_US.UTF-8"})
        EXPECT_TRUE(lines.removeOne(needed)) << needed;
    for (const QByteArray& line : lines) {
        static const QRegularExpression harmless(
            // From 10 on come the files of the shell itself.
            QStringLiteral(
                "^([0-2]|1[0-9]|(HOME|XDG_CONFIG_HOME|XDG_CACHE_HOME|https?_proxy|HTTPS_PROXY|"
                "no_proxy|NO_PROXY|SSL_CERT_\\w+|[A-Z]+SAN_OPTIONS|LD_LIBRARY_PATH)=.*)$"));
        EXPECT_TRUE(harmless.match(QString::fromUtf8(line)).hasMatch()) << line.toStdString();
    }
}

TEST(FeedChild, ProgramThatGivesNoPortGivesNoAddress) {
    for (const QString& program :
         {QStringLiteral("/nowhere/zephyrix-feedd"), QStringLiteral("/bin/false"),
          programPrinting("good morning"), programPrinting("0"), programPrinting("70000")}) {
        FeedChild feed(program);
        EXPECT_EQ(addressFrom(feed), QString()) << program.toStdString();
        EXPECT_EQ(addressFrom(feed), QString()) << "tried again";
    }
}

TEST(FeedChild, PortIsTheLastNumberOfTheFirstLine) {
    for (const char* line : {"4711", "listening on http://127.0.0.1:4711/"}) {
        FeedChild feed(programPrinting(line));
        EXPECT_EQ(addressFrom(feed), QStringLiteral("http://127.0.0.1:4711/")) << line;
    }
}

}  // namespace
}  // namespace zephyrix
