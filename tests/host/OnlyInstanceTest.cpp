#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/OnlyInstance.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::AllOf;
using ::testing::HasSubstr;

/// As another process does: the one that runs has its event loop meanwhile.
bool startIsTaken(const QString& folder) {
    bool taken = false;
    const std::unique_ptr<QThread> start(
        QThread::create([&] { taken = OnlyInstance(folder).isTaken(); }));
    start->start();
    EXPECT_TRUE(waitUntil([&] { return start->isFinished(); }));
    start->wait();
    return taken;
}

/// What a killed panel leaves: a socket on which nobody listens.
void leaveDeadSocket(const QString& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
}

TEST(OnlyInstance, SecondStartShowsTheFirst) {
    const QString folder = freshFolder();
    auto first = std::make_unique<OnlyInstance>(folder);
    ASSERT_FALSE(first->isTaken());
    int shown = 0;
    QObject::connect(first.get(), &OnlyInstance::shownAgain, qApp, [&] { ++shown; });
    EXPECT_TRUE(startIsTaken(folder));
    EXPECT_TRUE(startIsTaken(folder));
    EXPECT_TRUE(waitUntil([&] { return shown == 2; }));
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::System | QDir::Files))
        EXPECT_FALSE(file.permission(QFile::ReadGroup) || file.permission(QFile::WriteGroup) ||
                     file.permission(QFile::ReadOther) || file.permission(QFile::WriteOther))
            << file.filePath().toStdString();

    first.reset();
    EXPECT_FALSE(startIsTaken(folder)) << "the first has ended";
}

TEST(OnlyInstance, WhatAKilledPanelLeftIsReplaced) {
    const QString folder = freshFolder();
    leaveDeadSocket(folder + QStringLiteral("/zephyrix-panel"));
    const OnlyInstance first(folder);
    EXPECT_FALSE(first.isTaken());
    EXPECT_TRUE(startIsTaken(folder));
}

TEST(OnlyInstance, PanelThatHangsIsTakenForOneThatRuns) {
    const QString folder = freshFolder();
    const OnlyInstance first(folder);
    ::testing::internal::CaptureStderr();
    const OnlyInstance second(folder);  // the event loop, by which the first answers, does not run
    EXPECT_TRUE(second.isTaken());
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("does not answer"));
}

TEST(OnlyInstance, WhereNothingCanBeListenedOnEveryStartIsAPanel) {
    const QString deep = freshFolder() + QLatin1Char('/') + QString(100, QLatin1Char('d'));
    ASSERT_TRUE(QDir().mkpath(deep));
    for (const auto& [folder, why] : {std::pair(QStringLiteral("/nowhere"), "No such file"),
                                      std::pair(deep, "File name too long")}) {
        for (int start = 0; start < 2; ++start) {
            ::testing::internal::CaptureStderr();
            EXPECT_FALSE(OnlyInstance(folder).isTaken());
            EXPECT_THAT(
                ::testing::internal::GetCapturedStderr(),
                AllOf(HasSubstr("a second start will not find this panel"), HasSubstr(why)));
        }
    }
}

}  // namespace
}  // namespace zephyrix
