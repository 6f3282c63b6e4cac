#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SymbolSet.h"
#include "foundation/UserDefaults.h"
#include "support/Files.h"
#include "support/TestHome.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class WeatherSymbols : public SymbolSet {};

const QColor set0Lamp(40, 50, 60);   // symbols_0/lamp of the catalogue
const QColor plainLamp(10, 20, 30);  // PlainLamp of the catalogue

QString cacheFolder() {
    return testHome() + QStringLiteral("/cache/zephyrix-panel/symbolCache");
}

QString key() {
    return QStringLiteral("0+1100000+8.00+8.00+1.00.png");
}

/// Keeps an image under key() with its file, then forgets it in memory, as a restart does.
QImage keptThroughRestart() {
    QImage image = filled({12, 8}, QColor(200, 100, 50, 128));
    image.setDevicePixelRatio(1.25);
    QKWeatherSymbols::addObjectToCache(image, key());
    QKWeatherSymbols::startAfresh();
    return image;
}

TEST_F(WeatherSymbols, WithoutABundleEveryNameIsOneOfSet0InTheProgram) {
    QDir(setFolder()).removeRecursively();
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), std::nullopt);
    const QImage lamp = QKWeatherSymbols::imageForSymbolName(QStringLiteral("lamp"));
    EXPECT_EQ(lamp.pixelColor(0, 0), set0Lamp);
    EXPECT_TRUE(QKWeatherSymbols::imageForSymbolName(QStringLiteral("PlainLamp.png")).isNull());
    // Nothing found is not remembered: a set that appears is used at once.
    QDir().mkpath(setFolder());
    add(QStringLiteral("lamp"), filled({1, 1}, Qt::green));
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), setFolder());
    EXPECT_EQ(QKWeatherSymbols::imageForSymbolName(QStringLiteral("lamp")).pixelColor(0, 0),
              QColor(Qt::green));
}

TEST_F(WeatherSymbols, ABundleFallsBackToThePlainNameAndStaysForTheProcess) {
    const auto colour = [](const char* name) {
        const QImage image = QKWeatherSymbols::imageForSymbolName(QString::fromLatin1(name));
        return image.isNull() ? QColor() : image.pixelColor(0, 0);
    };
    QDir(dataFolder()).mkpath(QStringLiteral("symbols_7.bundle"));
    auto& defaults = UserDefaults::standard();
    defaults.set(QStringLiteral("symbolSet"), 7);
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), dataFolder() + QStringLiteral("/symbols_7.bundle"));
    EXPECT_EQ(colour("PlainLamp.png"), plainLamp);
    EXPECT_EQ(colour("PlainLamp"), plainLamp);
    EXPECT_EQ(colour("lamp"), QColor());
    defaults.remove(QStringLiteral("symbolSet"));
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), dataFolder() + QStringLiteral("/symbols_7.bundle"));
    EXPECT_TRUE(QKWeatherSymbols::chooseSet(0));
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), setFolder());
    EXPECT_FALSE(QKWeatherSymbols::chooseSet(8));
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), setFolder());
    QKWeatherSymbols::startAfresh();
    EXPECT_EQ(QKWeatherSymbols::symbolBundle(), setFolder());
}

TEST_F(WeatherSymbols, NamesAndKeysNeverLeadOutOfTheirFolders) {
    ASSERT_TRUE(filled({1, 1}, Qt::red).save(dataFolder() + QStringLiteral("/secret.png")));
    EXPECT_TRUE(QKWeatherSymbols::imageForSymbolName(QStringLiteral("../secret")).isNull());
    const QImage image = filled({4, 4}, Qt::red);
    for (const auto& way : {QStringLiteral("../out.png"), QStringLiteral("a/b.png")}) {
        QKWeatherSymbols::addObjectToCache(image, way);
        EXPECT_EQ(QKWeatherSymbols::imageFromCacheForKey(way), image);  // in memory
        QKWeatherSymbols::waitForFiles();
        EXPECT_FALSE(QFileInfo::exists(QKWeatherSymbols::documentsDir() + "/" + way));
        QKWeatherSymbols::startAfresh();
        EXPECT_TRUE(QKWeatherSymbols::imageFromCacheForKey(way).isNull());
    }
}

TEST_F(WeatherSymbols, FitsNamedImagesIntoPixelsOfTheScreen) {
    add(QStringLiteral("wide"), filled({100, 50}, Qt::blue));
    setScreenScale(2.0);
    const auto name = QStringLiteral("wide");
    const QImage image = QKWeatherSymbols::imageForSymbolName(name, QSizeF(40, 40));
    EXPECT_EQ(image.size(), QSize(80, 40));
    EXPECT_EQ(image.devicePixelRatio(), 1.0);
    EXPECT_TRUE(
        QKWeatherSymbols::symbolCache().contains(QStringLiteral("wide+40.00+40.00+2.00.png")));
    EXPECT_TRUE(QKWeatherSymbols::imageForSymbolName(QStringLiteral("none"), {40, 40}).isNull());
    EXPECT_TRUE(QKWeatherSymbols::imageForSymbolName(name, {0, 0}).isNull());
    setScreenScale(1.115);  // as a float it lies above the half
    (void)QKWeatherSymbols::imageForSymbolName(name, QSizeF(40, 40));
    EXPECT_TRUE(
        QKWeatherSymbols::symbolCache().contains(QStringLiteral("wide+40.00+40.00+1.12.png")));
}

TEST_F(WeatherSymbols, ComposesNamesThatAreCodes) {
    for (const auto* name : {"moon8", "0999999", "10000000"})
        addFilled(QString::fromLatin1(name));
    setScreenScale(2.0);
    const auto image = [](const char* name) {
        return QKWeatherSymbols::imageForSymbolName(QString::fromLatin1(name), QSizeF(20, 20));
    };
    const QImage moon = image("2000000 by night");
    ASSERT_EQ(moon.size(), QSize(40, 40));
    EXPECT_EQ(nameOf(moon.copy(18, 18, 1, 1)), QStringLiteral("moon8"));
    EXPECT_EQ(qAlpha(moon.pixel(38, 38)), 0);  // 0.75 of the picture, up and to the left
    EXPECT_EQ(nameOf(image("0999999")), QStringLiteral("0999999"));
    EXPECT_EQ(nameOf(image("10000000")), QStringLiteral("10000000"));
}

TEST_F(WeatherSymbols, FinishedSymbolsSurviveARestart) {
    const QImage image = keptThroughRestart();
    EXPECT_TRUE(QKWeatherSymbols::symbolCache().isEmpty());
    EXPECT_TRUE(QFile::exists(cacheFolder() + QLatin1Char('/') + key()));
    EXPECT_EQ(QKWeatherSymbols::imageFromCacheForKey(key()), image);
    EXPECT_EQ(QKWeatherSymbols::imageFromCacheForKey(key()).devicePixelRatio(), 1.25);
    EXPECT_TRUE(QKWeatherSymbols::symbolCache().contains(key()));
    const auto onlyOwner = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser | QFile::ReadOwner |
                           QFile::WriteOwner | QFile::ExeOwner;
    EXPECT_EQ(QFile::permissions(cacheFolder()), onlyOwner);
}

TEST_F(WeatherSymbols, AnEndingApplicationWritesItsFilesFirst) {
    {
        int count = 1;
        char name[] = "test";
        char* arguments[] = {name, nullptr};
        const QCoreApplication application(count, arguments);
        for (int i = 0; i < 20; ++i)
            QKWeatherSymbols::addObjectToCache(filled({64, 64}, Qt::red),
                                               QStringLiteral("%1.png").arg(i));
        QKWeatherSymbols::symbolCache().clear();
        // Not written yet, but to a caller it is in its file.
        EXPECT_FALSE(QKWeatherSymbols::imageFromCacheForKey(QStringLiteral("19.png")).isNull());
    }
    EXPECT_EQ(QDir(cacheFolder()).entryList({QStringLiteral("*.png")}).size(), 20);
}

TEST_F(WeatherSymbols, ACutOffOrForeignFileIsAMissAndIsReplaced) {
    addFilled(QStringLiteral("sun"));
    QKCompoundSymbol symbols;
    symbols.setUseCache(true);
    const QImage drawn = symbols.symbolForCode(Number(1000000), QSizeF(24, 24));
    const QString own = QKWeatherSymbols::symbolCache().keys().constFirst();
    QKWeatherSymbols::startAfresh();
    const QString path = cacheFolder() + QLatin1Char('/') + own;
    const QByteArray whole = contentOf(path);
    ASSERT_GT(whole.size(), 100);

    QList<QByteArray> broken;
    for (qsizetype size = 0; size < whole.size(); size += 3)
        broken += whole.left(size);
    broken += QByteArray(5000, 'x');
    QByteArray damaged = whole;
    damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 0x55);
    broken += damaged;
    for (const QByteArray& bytes : broken) {
        overwrite(path, bytes);
        const QImage found = QKWeatherSymbols::imageFromCacheForKey(own);
        if (whole.startsWith(bytes) && whole.size() - bytes.size() < 12)  // all but the end mark
            EXPECT_TRUE(found.isNull() || found == drawn) << bytes.size();
        else
            EXPECT_TRUE(found.isNull()) << bytes.size();
        QKWeatherSymbols::startAfresh();
    }
    EXPECT_EQ(symbols.symbolForCode(Number(1000000), QSizeF(24, 24)), drawn);
    QKWeatherSymbols::waitForFiles();
    EXPECT_EQ(contentOf(path), whole);
}

TEST_F(WeatherSymbols, TakesNeitherGiantsNorPipesForSymbols) {
    const QString path = QKWeatherSymbols::documentsDir() + QLatin1Char('/') + key();
    ASSERT_TRUE(QImage(5000, 1, QImage::Format_Grayscale8).save(path));
    EXPECT_TRUE(QKWeatherSymbols::imageFromCacheForKey(key()).isNull());
    QFile::remove(path);
    ASSERT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    EXPECT_TRUE(QKWeatherSymbols::imageFromCacheForKey(key()).isNull());  // and does not wait
    QKWeatherSymbols::addObjectToCache(filled({4, 4}, Qt::red), key());
    QKWeatherSymbols::waitForFiles();
}

TEST_F(WeatherSymbols, AFileInPlaceOfTheFolderLeavesTheMemory) {
    QKWeatherSymbols::startAfresh();
    QDir(cacheFolder()).removeRecursively();
    overwrite(cacheFolder(), "in the way");
    QKWeatherSymbols::startAfresh();
    const QImage image = filled({4, 4}, Qt::red);
    QKWeatherSymbols::addObjectToCache(image, key());
    EXPECT_EQ(QKWeatherSymbols::imageFromCacheForKey(key()), image);
    QKWeatherSymbols::startAfresh();
    EXPECT_TRUE(QKWeatherSymbols::imageFromCacheForKey(key()).isNull());
}

TEST_F(WeatherSymbols, AFullDiskLeavesNoHalfFile) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit tight{40, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &tight);
    const QImage image = keptThroughRestart();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(QFile::exists(cacheFolder() + QLatin1Char('/') + key()));
    EXPECT_TRUE(QKWeatherSymbols::imageFromCacheForKey(key()).isNull());
}

TEST_F(WeatherSymbols, ClearingForgetsEverythingAndNothingReappears) {
    (void)keptThroughRestart();
    const QImage onScreen = QKWeatherSymbols::imageFromCacheForKey(key());
    for (int i = 0; i < 20; ++i)
        QKWeatherSymbols::addObjectToCache(onScreen, QStringLiteral("%1.png").arg(i));
    QKWeatherSymbols::clearCache();
    QKWeatherSymbols::waitForFiles();
    EXPECT_FALSE(QFileInfo::exists(cacheFolder()));
    EXPECT_EQ(onScreen.pixelColor(3, 3).alpha(), 128);
    EXPECT_TRUE(QKWeatherSymbols::imageFromCacheForKey(key()).isNull());
    (void)keptThroughRestart();
    EXPECT_FALSE(QKWeatherSymbols::imageFromCacheForKey(key()).isNull());
}

TEST_F(WeatherSymbols, ClearingLogsAFolderThatCannotBeRemoved) {
    const QString folder = QKWeatherSymbols::documentsDir();
    QDir(folder).removeRecursively();
    ::testing::internal::CaptureStderr();
    QKWeatherSymbols::clearCache();
    const std::string line = ::testing::internal::GetCapturedStderr();
    EXPECT_THAT(line, ::testing::HasSubstr(folder.toStdString()));
    EXPECT_THAT(line, ::testing::HasSubstr("No such file or directory"));
}

}  // namespace
}  // namespace zephyrix
