// What the build says to a translator's slip: file, line and what is wrong, and no database.
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
    bool wroteDatabase = false;
};

QString copyOfTheTables() {
    const QDir tables(QStringLiteral(SOURCE_DIR "/resources/texts"));
    QString folder = testing::freshFolder();
    for (const QString& name : tables.entryList({QStringLiteral("*.tsv")}, QDir::Files))
        QFile::copy(tables.filePath(name), folder + QLatin1Char('/') + name);
    return folder;
}

Result compile(const QString& folder) {
    const QString database = folder + QStringLiteral("/out.sqlite");
    QProcess compiler;
    compiler.start(QStringLiteral("python3"),
                   {QStringLiteral(SOURCE_DIR "/tools/compile_texts.py"), folder, database});
    compiler.waitForFinished();
    return {compiler.exitCode(), QString::fromUtf8(compiler.readAllStandardError()),
            QFile::exists(database)};
}

/// Replaces the one line that begins with `code` and a tab, or removes it for an empty `line`.
void replaceLine(const QString& path, const QByteArray& code, const QByteArray& line) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArrayList lines = file.readAll().split('\n');
    for (QByteArray& each : lines) {
        if (each.startsWith(code + '\t'))
            each = line.isEmpty() ? QByteArray("# removed") : line;
    }
    file.resize(0);
    file.write(lines.join('\n'));
}

TEST(TextCompiler, EverySlipIsToldWithFileAndLineAllAtOnce) {
    struct Slip {
        const char* file;
        const char* code;  // whose line is replaced
        const char* line;  // empty: the line is lost
        const char* complaint;
    };
    const std::array slips{
        Slip{"en", "ww50", "", "en.tsv:1: 'ww50' is missing"},
        Slip{"en", "ww61", "ww60\tlight rain", "en.tsv:76: 'ww60' stands already in line 75"},
        Slip{"en", "ww62", "ww161\tlight rain", "en.tsv:77: unknown code 'ww161'"},
        Slip{"en", "ww63", "ww63", "en.tsv:78: 'ww63' has 0 fields"},
        Slip{"en", "ww64", "ww64\theavy  rain",
             "en.tsv:79: 'ww64': \"heavy  rain\" is empty or has"},
        Slip{"en", "ww65", "ww65\tHeavy rain",
             "en.tsv:80: 'ww65': \"Heavy rain\" begins with a cap"},
        Slip{"en", "n0", "n0\tsunny", "en.tsv:5: 'n0': \"sunny\" names the sun by night"},
        Slip{"en", "n1", "n1\tfair\tfair", "en.tsv:6: 'n1': the night's text is the day's"},
        Slip{"de", "ww70", "ww70\tlight snow at times",
             "de.tsv:85: 'ww70': \"light snow at times\" st"},
        Slip{"de", "ww61", "ww61\tleichter Re\u0301gen",
             "de.tsv:76: 'ww61': \"leichter Re\u0301gen\" is"},
        Slip{"ru", "ww61", "ww61\tнебольшoй дождь", "has letters that the language does not: o"},
        Slip{"nl", "ww61", "ww61\teen hele lange zin die nergens in past hoor", "has 43 letters"},
        Slip{"codes", "ww61", "ww61\t3\train", "codes.tsv:77: 'ww61': a weight is 0, 1 or 2"},
    };
    const QString folder = copyOfTheTables();
    for (const Slip& slip : slips)
        replaceLine(QStringLiteral("%1/%2.tsv").arg(folder, QLatin1String(slip.file)), slip.code,
                    slip.line);
    const Result result = compile(folder);
    EXPECT_NE(result.exitCode, 0);
    EXPECT_FALSE(result.wroteDatabase);
    for (const Slip& slip : slips)
        EXPECT_TRUE(result.complaints.contains(QString::fromUtf8(slip.complaint)))
            << slip.complaint << " is not in\n"
            << result.complaints.toStdString();
}

TEST(TextCompiler, ALostTableIsTold) {
    const QString folder = copyOfTheTables();
    QFile::remove(folder + QStringLiteral("/sv.tsv"));
    const Result result = compile(folder);
    EXPECT_NE(result.exitCode, 0);
    EXPECT_TRUE(result.complaints.contains(QStringLiteral("sv.tsv:1: cannot be read")));
}

}  // namespace
}  // namespace zephyrix
