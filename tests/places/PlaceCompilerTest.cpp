// What the build says to a slip in the tables, and that the same tables give the same file.
#include <array>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

#include "support/TestHome.h"

namespace zephyrix {
namespace {

struct Result {
    int exitCode = -1;
    QString complaints;
    QByteArray database;  // empty when none was written
};

QString copyOfTheTables() {
    const QDir tables(QStringLiteral(SOURCE_DIR "/resources/places"));
    QString folder = testing::freshFolder();
    for (const QString& name : tables.entryList({QStringLiteral("*.tsv")}, QDir::Files))
        QFile::copy(tables.filePath(name), folder + QLatin1Char('/') + name);
    return folder;
}

Result compile(const QString& folder) {
    const QString database = folder + QStringLiteral("/out.sqlite");
    QProcess compiler;
    compiler.start(QStringLiteral("python3"),
                   {QStringLiteral(SOURCE_DIR "/tools/compile_places.py"), folder, database});
    EXPECT_TRUE(compiler.waitForFinished(120'000));
    QFile file(database);
    return {compiler.exitCode(), QString::fromUtf8(compiler.readAllStandardError()),
            file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray()};
}

/// Replaces the first occurrence in a file.
void replace(const QString& path, const QByteArray& text, const QByteArray& other) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray all = file.readAll();
    const auto at = all.indexOf(text);
    ASSERT_GE(at, 0) << text.toStdString();
    file.resize(0);
    file.write(all.replace(at, text.size(), other));
}

TEST(PlaceCompiler, TheSameTablesGiveTheSameBytesWhichAreThoseOfTheBuild) {
    const Result result = compile(copyOfTheTables());
    EXPECT_EQ(result.exitCode, 0) << result.complaints.toStdString();
    QFile built(QStringLiteral(PROGRAM_DIR "/../share/zephyrix/places.sqlite"));
    ASSERT_TRUE(built.open(QIODevice::ReadOnly));
    EXPECT_TRUE(result.database == built.readAll());  // eight megabytes are not to be printed
}

TEST(PlaceCompiler, EverySlipIsToldWithItsFileAllAtOnce) {
    struct Slip {
        const char* file;
        const char* text;
        const char* other;
        const char* complaint;
    };
    const std::array slips{
        Slip{"places", "3133895\tTromsø\tNO", "3133895\tTromsø\tQQ", "there is no country 'QQ'"},
        Slip{"places", "\tVadsø\t", "\tVadsø \t", "the name is empty or has stray blanks"},
        Slip{"places", "\t63.4305\t", "\t93.4305\t", "the coordinates are not on earth"},
        Slip{"places", "3161732\tBergen", "3133895\tBergen", "3133895 is there already"},
        Slip{"places", "2988507\tParis\tFR\t11\t48.8534\t2.3488\tEurope/Paris",
             "2988507\tParis\tFR\t11\t48.8534\t2.3488\t", "'' is no zone"},
        Slip{"places", "2643743\tLondon\tGB", "2643743\tLondon", "has 7 fields"},
        Slip{"names", "2618425\tCopenhagen", "2618425\tKobenhavn",
             "places.tsv has no 2618425 'Kobenhavn'"},
        Slip{"names", "\tMailand\t", "\tMilan\t", "'Milan' is the list's own name"},
        Slip{"countries", "VA\tVatican City\t", "VA\t", "has 9 fields"},
    };
    const QString folder = copyOfTheTables();
    for (const Slip& slip : slips)
        replace(QStringLiteral("%1/%2.tsv").arg(folder, QLatin1String(slip.file)), slip.text,
                slip.other);
    const Result result = compile(folder);
    EXPECT_NE(result.exitCode, 0);
    EXPECT_TRUE(result.database.isEmpty());
    for (const Slip& slip : slips)
        EXPECT_TRUE(result.complaints.contains(QString::fromUtf8(slip.complaint)))
            << slip.complaint << " is not in\n"
            << result.complaints.left(3000).toStdString();
}

TEST(PlaceCompiler, AListThatLostMostOfItsPlacesIsRefused) {
    const QString folder = copyOfTheTables();
    QFile table(folder + QStringLiteral("/places.tsv"));
    ASSERT_TRUE(table.open(QIODevice::ReadWrite));
    table.resize(table.size() / 2);
    EXPECT_TRUE(compile(folder).complaints.contains(QStringLiteral("fewer than 25000")));
}

}  // namespace
}  // namespace zephyrix
