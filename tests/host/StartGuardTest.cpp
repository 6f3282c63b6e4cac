#include <memory>

#include <QCoreApplication>
#include <QFile>
#include <gtest/gtest.h>

#include "host/StartGuard.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

const QString documentKey = QStringLiteral("lastWeatherData");
const QString rejectedKey = QStringLiteral("lastWeatherData.rejected");
const QVariantMap document{{QStringLiteral("uid"), 5}};

class StartGuardTest : public ::testing::Test {
  protected:
    StartGuardTest() {
        qputenv("XDG_CONFIG_HOME", testing::freshFolder().toUtf8());
        settings().set(documentKey, document);
    }
    static UserDefaults& settings() { return UserDefaults::standard(); }
    static bool isUsed() {
        return settings().dictionary(documentKey) && !settings().dictionary(rejectedKey);
    }

    QString note_ = testing::freshFolder() + QStringLiteral("/cache/starting");
};

TEST_F(StartGuardTest, StartThatGotThereLeavesTheDocument) {
    for (int start = 0; start < 2; ++start) {
        StartGuard guard(note_, settings());
        guard.started();
    }
    EXPECT_TRUE(isUsed());
}

TEST_F(StartGuardTest, StartThatDiedMovesTheDocumentAside) {
    { const StartGuard dies(note_, settings()); }
    {
        StartGuard guard(note_, settings());
        EXPECT_FALSE(settings().object(documentKey).isValid());
        EXPECT_EQ(settings().dictionary(rejectedKey), document);
        guard.started();
    }
    settings().set(documentKey, document);
    const StartGuard next(note_, settings());
    EXPECT_TRUE(settings().dictionary(documentKey)) << "rejected once only";
}

TEST_F(StartGuardTest, StartUnderWayIsNotTakenForADeadOne) {
    StartGuard first(note_, settings());
    StartGuard second(note_, settings());
    second.started();
    first.started();
    const StartGuard third(note_, settings());
    EXPECT_TRUE(isUsed());
}

TEST_F(StartGuardTest, WithoutAPlaceForTheNoteThePanelStarts) {
    QFile inTheWay(note_.left(note_.lastIndexOf(QLatin1Char('/'))));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    { const StartGuard dies(note_, settings()); }
    const StartGuard guard(note_, settings());
    EXPECT_TRUE(isUsed());
}

}  // namespace
}  // namespace zephyrix
