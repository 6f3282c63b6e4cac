// The real program, drawing with the real symbol sets.
#include <QDir>
#include <QImage>
#include <QProcess>
#include <gtest/gtest.h>

#include "support/TestHome.h"

namespace zephyrix {
namespace {

class SymbolCommand : public ::testing::Test {
  protected:
    SymbolCommand() : folder_(testing::freshFolder()) {
        qputenv("XDG_CONFIG_HOME", (folder_ + "/config").toUtf8());
        qputenv("XDG_CACHE_HOME", (folder_ + "/cache").toUtf8());
    }

    /// Runs "zephyrix symbol" with these words and FILE for the picture's path.
    int run(const QString& words) {
        QProcess process;
        process.start(
            QStringLiteral(PROGRAM_DIR "/zephyrix"),
            QProcess::splitCommand(QStringLiteral("symbol ") +
                                   QString(words).replace(QLatin1String("FILE"), file())));
        EXPECT_TRUE(process.waitForFinished());
        errors_ = process.readAllStandardError();
        return process.exitCode();
    }

    QImage drawn(const QString& words) {
        QFile::remove(file());
        EXPECT_EQ(run(words), 0) << errors_.toStdString();
        return QImage(file());
    }

    [[nodiscard]] QString file() const { return folder_ + QStringLiteral("/picture.png"); }

    QString folder_;
    QByteArray errors_;
};

TEST_F(SymbolCommand, DrawsACodeInPixelsOfItsScaleAndLeavesNoTraces) {
    const QImage sun = drawn(QStringLiteral("1000000 --size 50 --scale 2 -o FILE"));
    ASSERT_EQ(sun.size(), QSize(100, 100));
    const QColor centre = sun.pixelColor(43, 45);  // where a clear sky has its sun
    EXPECT_EQ(centre.alpha(), 255);
    EXPECT_GT(centre.red(), 200);
    EXPECT_LT(centre.blue(), centre.red());
    EXPECT_EQ(qAlpha(sun.pixel(99, 99)), 0);
    EXPECT_EQ(QDir(folder_).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList(QStringLiteral("picture.png")));
}

TEST_F(SymbolCommand, DateAndSetChangeThePicture) {
    const QImage without = drawn(QStringLiteral("2000000 -o FILE"));
    EXPECT_EQ(without, drawn(QStringLiteral("2000000 --date 2015-07-12T12:00:00Z -o FILE")));
    EXPECT_NE(without, drawn(QStringLiteral("2000000 --date 2015-07-02T02:20:00Z -o FILE")));
    EXPECT_NE(without, drawn(QStringLiteral("2000000 --set 1 -o FILE")));
}

TEST_F(SymbolCommand, TheSheetShowsEachCodeOnBothGrounds) {
    const QImage sheet = drawn(QStringLiteral("--sheet FILE --size 24"));
    ASSERT_GT(sheet.height(), 600);
    int different = 0;  // symbols that are there: not the ground alone, in either half
    for (int half = 0; half < 2; ++half) {
        const QRect first(4, 4 + half * sheet.height() / 2, 24, 24);
        const QRgb ground = sheet.pixel(0, half * sheet.height() / 2);
        for (int y = first.top(); y <= first.bottom(); ++y)
            for (int x = first.left(); x <= first.right(); ++x)
                different += sheet.pixel(x, y) != ground ? 1 : 0;
        EXPECT_GT(different, 50 * (half + 1));
    }
    EXPECT_NE(sheet.pixel(0, 0), sheet.pixel(0, sheet.height() - 1));
}

TEST_F(SymbolCommand, RefusesWhatItCannotDrawAndWritesNothing) {
    constexpr int failure = 1;
    constexpr int usage = 2;
    const struct {
        const char* words;
        int exitCode;
    } cases[] = {
        {"", usage},
        {"1000000", usage},
        {"-o FILE", usage},
        {"sunny -o FILE", usage},
        {"-- -1 -o FILE", usage},
        {"1000000 2000000 -o FILE", usage},
        {"1000000 -o FILE --sheet FILE", usage},
        {"1000000 --sheet FILE", usage},
        {"1000000 -o FILE --size 0", usage},
        {"1000000 -o FILE --size nan", usage},
        {"1000000 -o FILE --size 0.1", usage},
        {"1000000 -o FILE --scale 99", usage},
        {"1000000 -o FILE --date yesterday", usage},
        {"--sheet FILE --size 1000", usage},
        {"1000000 -o FILE --set 77", failure},
        {"1000000 -o FILE/below", failure},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(run(QString::fromLatin1(each.words)), each.exitCode) << each.words;
        EXPECT_TRUE(errors_.startsWith("zephyrix: ")) << errors_.toStdString();
        EXPECT_FALSE(QFile::exists(file())) << each.words;
    }
}

}  // namespace
}  // namespace zephyrix
