#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <gtest/gtest.h>

#include "host/OnlyInstance.h"
#include "support/LoopbackServer.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

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

TEST(OnlyInstance, WithoutAFolderEveryStartIsAPanel) {
    EXPECT_FALSE(OnlyInstance(QStringLiteral("/nowhere")).isTaken());
}

}  // namespace
}  // namespace zephyrix
