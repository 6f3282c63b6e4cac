// The real program, drawing with the real symbol sets.
#include <QDir>
#include <QImage>
#include <gtest/gtest.h>

#include "support/DataLines.h"
#include "support/Programs.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

class SymbolCommand : public ::testing::Test {
  protected:
    SymbolCommand() {
        qputenv("XDG_CONFIG_HOME", (folder_ + "/config").toUtf8());
        qputenv("XDG_CACHE_HOME", (folder_ + "/cache").toUtf8());
    }

    /// Runs "zephyrix symbol" with these words and FILE for the picture's path.
    [[nodiscard]] Outcome run(QString words) const {
        return runOurs(QStringLiteral("zephyrix symbol ") +
                       words.replace(QLatin1String("FILE"), file()));
    }

    [[nodiscard]] QImage drawn(const QString& words) const {
        QFile::remove(file());
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
        return QImage(file());
    }

    [[nodiscard]] QString file() const { return folder_ + QStringLiteral("/picture.png"); }

    QString folder_ = freshFolder();
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
    forEachLine("app/bad_symbols.tsv", [this](const DataLine& line) {
        const Outcome refused = run(line[1]);
        EXPECT_EQ(refused.exitCode, line.integer(0));
        EXPECT_TRUE(refused.err.startsWith("zephyrix: ")) << refused.err.toStdString();
        EXPECT_FALSE(QFile::exists(file()));
    });
}

}  // namespace
}  // namespace zephyrix
