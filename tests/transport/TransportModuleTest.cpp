#include <memory>
#include <optional>

#include <QCoreApplication>
#include <QFile>
#include <QNetworkReply>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/LoopbackServer.h"
#include "support/TestHome.h"
#include "transport/TransportModule.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;

const QString installed = QStringLiteral(PROGRAM_DIR "/" MODULES_DIR "/zephyrix-network.so");

class TransportModuleTest : public ::testing::Test {
  protected:
    struct Result {
        QByteArray body;
        std::optional<FeedError> error;
    };

    void start(FeedTransport& transport) {
        result_.reset();
        transport.get(QUrl(server_.baseAddress()), {},
                      [this](const QByteArray& body, std::optional<FeedError> error) {
                          EXPECT_FALSE(result_) << "called twice";
                          result_ = {body, std::move(error)};
                      });
        EXPECT_FALSE(result_) << "called before the event loop runs";
    }
    Result fetch(FeedTransport& transport) {
        start(transport);
        EXPECT_TRUE(waitUntil([this] { return result_.has_value(); }));
        return result_.value_or(Result());
    }

    LoopbackServer server_{answerBody("{}")};
    std::optional<Result> result_;
};

TEST_F(TransportModuleTest, AsksByTheModuleOfTheProgram) {
    TransportModule transport;
    for (int request = 0; request < 2; ++request) {
        const Result result = fetch(transport);
        EXPECT_FALSE(result.error) << result.error->description().toStdString();
        EXPECT_EQ(result.body, "{}");
    }
}

struct Module {
    const char* file;
    const char* told;
};

TEST_F(TransportModuleTest, WhatCannotBeLoadedIsATransportError) {
    for (const Module& module : {
             Module{"/nowhere/zephyrix-network.so", "/nowhere/zephyrix-network.so"},
             Module{SOURCE_DIR "/LICENSE", "LICENSE: invalid ELF header"},
             Module{"libm.so.6", "undefined symbol: zephyrix_make_transport"},
             Module{OTHER_VERSION, "other-version.so is of another version"},
         }) {
        TransportModule transport(QString::fromLatin1(module.file));
        const Result result = fetch(transport);
        ASSERT_TRUE(result.error) << module.file;
        EXPECT_EQ(result.error->domain, FeedError::transportDomain);
        EXPECT_EQ(result.error->code, QNetworkReply::UnknownNetworkError);
        EXPECT_THAT(result.error->description().toStdString(), HasSubstr(module.told));
        EXPECT_TRUE(result.body.isEmpty());
    }
    EXPECT_TRUE(server_.requestLines().isEmpty());
}

TEST_F(TransportModuleTest, IsLoadedOnceItIsThere) {
    const QString late = freshFolder() + QStringLiteral("/late.so");
    TransportModule transport(late);
    EXPECT_TRUE(fetch(transport).error);
    ASSERT_TRUE(QFile(installed).link(late));
    EXPECT_FALSE(fetch(transport).error);
}

TEST_F(TransportModuleTest, EndedWhileItFailsItStaysSilent) {
    auto transport = std::make_unique<TransportModule>(QStringLiteral("/nowhere/module.so"));
    start(*transport);
    transport.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(result_);
}

}  // namespace
}  // namespace zephyrix
