#include <memory>
#include <optional>

#include <QFile>
#include <QTcpSocket>
#include <QUrl>
#include <gtest/gtest.h>

#include "host/FeedChild.h"
#include "support/LoopbackServer.h"
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

/// A program that prints this line and then waits.
QString programPrinting(const char* line) {
    QFile script(freshFolder() + QStringLiteral("/feed"));
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(QByteArray("#!/bin/sh\necho '") + line + "'\nread nothing\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return script.fileName();
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
