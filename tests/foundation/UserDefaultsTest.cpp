#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SettingsFolder.h"
#include "foundation/UserDefaults.h"
#include "support/Files.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;
using ::testing::HasSubstr;

const QString city = QStringLiteral("city");
const QString wind = QStringLiteral("wind");

class UserDefaultsTest : public ::testing::Test {
  protected:
    SettingsFolder folder_;
};

TEST_F(UserDefaultsTest, ValuesOutliveTheStore) {
    const QVariantMap place{{QStringLiteral("name"), QStringLiteral("Berlin")},
                            {QStringLiteral("uid"), 18228265LL},
                            {QStringLiteral("latitude"), 52.529998779296875}};
    {
        const auto store = openSuite();
        store->set(city, place);
        store->set(wind, 2);
        store->set(QStringLiteral("seen"), true);
    }
    const auto store = openSuite();
    EXPECT_EQ(store->dictionary(city), place);
    EXPECT_EQ(store->integer(wind), 2);
    EXPECT_TRUE(store->boolean(QStringLiteral("seen")));
    EXPECT_EQ(store->dictionary(wind), std::nullopt);
    EXPECT_FALSE(store->boolean(city));
    EXPECT_EQ(store->integer(QStringLiteral("absent")), 0);
}

// A change of the type alone is a change, too.
TEST_F(UserDefaultsTest, AValueIsAtOnceWhatTheNextStartReads) {
    const auto store = openSuite();
    for (const QVariant& value : {QVariant(1LL), QVariant(true), QVariant(1.0), QVariant(1.5F),
                                  QVariant(QDateTime::fromMSecsSinceEpoch(999, Qt::UTC))}) {
        store->set(city, value);
        const QVariant kept = store->object(city);
        ASSERT_TRUE(store->synchronize());
        EXPECT_EQ(openSuite()->object(city), kept);
        EXPECT_EQ(openSuite()->object(city).typeId(), kept.typeId());
    }
    EXPECT_EQ(store->object(city).toDateTime().toMSecsSinceEpoch(), 0);
}

TEST_F(UserDefaultsTest, AValueThatNoFileCanHoldIsRefused) {
    const auto store = openSuite();
    store->set(city, 1);
    ::testing::internal::CaptureStderr();
    store->set(city, QVariantList{QDateTime()});
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("setting \"city\" is refused"));
    EXPECT_EQ(store->integer(city), 1);
    store->set(city, {});
    EXPECT_FALSE(store->object(city).isValid());
}

TEST_F(UserDefaultsTest, OnlyOwnKeysAreWritten) {
    const auto first = openSuite();
    const auto second = openSuite();
    first->set(city, 1);
    first->set(QStringLiteral("gone"), 1);
    ASSERT_TRUE(first->synchronize());
    second->set(wind, 2);
    second->remove(QStringLiteral("gone"));
    ASSERT_TRUE(second->synchronize());
    EXPECT_EQ(second->integer(city), 1);
    EXPECT_EQ(first->integer(wind), 0);
    ASSERT_TRUE(first->synchronize());
    EXPECT_EQ(first->integer(wind), 2);
    EXPECT_FALSE(first->object(QStringLiteral("gone")).isValid());
}

TEST_F(UserDefaultsTest, ChangesOfOneTurnAreOneWriteAtTheNext) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    const auto store = openSuite();
    store->set(city, 1);
    store->set(wind, 2);
    EXPECT_FALSE(QFile::exists(store->fileName()));
    QCoreApplication::processEvents();
    EXPECT_EQ(openSuite()->integer(wind), 2);
    store->set(wind, 2);
    const QDateTime written = QFileInfo(store->fileName()).lastModified();
    QCoreApplication::processEvents();
    EXPECT_EQ(QFileInfo(store->fileName()).lastModified(), written) << "nothing new to write";
}

TEST_F(UserDefaultsTest, FilesAreTheOwnersAloneAlsoThoseThatOthersMade) {
    QDir().mkpath(folder_.path());
    overwrite(folder_.path() + QStringLiteral("/group.Zephyrix.plist"), "<plist><dict/></plist>");
    ASSERT_TRUE(QFileInfo(folder_.path()).permissions() & QFile::ReadOther);
    openSuite()->set(city, 1);
    const auto others = ~(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                          QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser);
    EXPECT_FALSE(QFileInfo(folder_.path()).permissions() & others);
    const auto files = QDir(folder_.path()).entryInfoList(QDir::Files);
    EXPECT_EQ(files.size(), 2) << "the store and its lock";
    for (const QFileInfo& file : files)
        EXPECT_FALSE(file.permissions() & others) << qPrintable(file.filePath());
}

TEST_F(UserDefaultsTest, AFolderThatIsRemovedIsMadeAgain) {
    const auto store = openSuite();
    ASSERT_TRUE(QDir(folder_.path()).removeRecursively());
    store->set(city, 1);
    ASSERT_TRUE(store->synchronize());
    EXPECT_EQ(openSuite()->integer(city), 1);
}

TEST_F(UserDefaultsTest, StandardStoreBearsTheApplicationsName) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    QCoreApplication::setApplicationName(QStringLiteral("weather-panel"));
    EXPECT_EQ(UserDefaults::standard().fileName(),
              folder_.path() + QStringLiteral("/weather-panel.plist"));
    EXPECT_EQ(&UserDefaults::standard(), &UserDefaults::standard());
    QCoreApplication::setApplicationName({});
}

TEST_F(UserDefaultsTest, ASuiteNeedsAPlainNameAndAFolder) {
    ::testing::internal::CaptureStderr();
    for (const char* name : {"", "..", "../x", "/etc/passwd", ".hidden"})
        EXPECT_EQ(UserDefaults::suite(QLatin1String(name)), nullptr);
    QDir().mkpath(QFileInfo(folder_.path()).path());
    ASSERT_TRUE(QFile(folder_.path()).open(QIODevice::WriteOnly));
    EXPECT_EQ(UserDefaults::suite(QStringLiteral("group.Zephyrix")), nullptr);
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("cannot be opened"));
}

TEST_F(UserDefaultsTest, ALinkToTheFileStays) {
    const QString target = folder_.make() + QStringLiteral("/elsewhere.plist");
    const auto store = openSuite();
    ASSERT_TRUE(QFile::link(target, store->fileName()));
    ASSERT_TRUE(QFile(target).open(QIODevice::WriteOnly));
    overwrite(target, "<plist><dict><key>city</key><integer>7</integer></dict></plist>");
    store->set(wind, 2);
    ASSERT_TRUE(store->synchronize());
    EXPECT_EQ(store->integer(city), 7);
    EXPECT_TRUE(QFileInfo(store->fileName()).isSymLink());
    EXPECT_THAT(contentOf(target).toStdString(), HasSubstr("<key>wind</key>"));
}

}  // namespace
}  // namespace zephyrix
