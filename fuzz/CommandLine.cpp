// Command lines of the three programs: the program's name, then an argument a line. `zephyrix` runs
// what it was asked, on settings of its own; the other two only say what was asked of them.
#include "app/CommandLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextStream>

#include "Surroundings.h"
#include "feed/FeedOptions.h"
#include "host/PanelOptions.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

void parsePanel(const QStringList& words) {
    try {
        const PanelOptions asked = PanelOptions::parse(words);
        expect(asked.width >= 320.0 && asked.width <= 2000.0, "the width is in its range");
        expect(!asked.scale || (*asked.scale >= 0.5 && *asked.scale <= 8.0),
               "the scale is in its range");
        const QString& feed = asked.feed.address;
        expect(feed.isEmpty() ||
                   (feed.startsWith(QLatin1String("http")) && feed.endsWith(QLatin1Char('/'))),
               "a feed has an address");
    } catch (const PanelOptions::Error& error) {
        expect(!error.text().isEmpty(), "a refusal has words");
    }
}

void parseFeed(const QStringList& words) {
    try {
        const FeedOptions asked = FeedOptions::from(words.mid(1));
        expect(asked.port >= 0 && asked.port <= 65535, "the port is in its range");
        expect(asked.scenario != nullptr, "there is a scenario");
    } catch (const BadOption& error) {
        expect(error.what()[0] != '\0', "a refusal has words");
    }
}

/// `symbol` writes the file that it is told to: here none outside of this run's folder. And a sheet
/// of all symbols takes seconds.
bool isSpared(const QStringList& words) {
    const QString line = words.join(QLatin1Char(' '));
    const bool leavesFolder = line.contains(QLatin1Char('/'));
    const bool isSheet = line.contains(QLatin1String("-sheet"));
    return words.value(1) == QLatin1String("symbol") && (leavesFolder || isSheet);
}

void removeWrittenFiles() {
    const QDir folder(home());
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden))
        QFile::remove(folder.filePath(name));
}

void runMainApplication(const QStringList& words) {
    if (isSpared(words))
        return;
    QString answer;
    QString refusal;
    QTextStream out(&answer);
    QTextStream err(&refusal);
    const QString before = QDir::currentPath();
    QDir::setCurrent(home());  // where a picture without a folder lands
    const ExitCode code = runCommandLine(words.mid(1), out, err);
    QDir::setCurrent(before);
    out.flush();
    err.flush();
    expect((code == ExitCode::Success) == refusal.isEmpty(), "what fails says why");
    removeWrittenFiles();
    QCoreApplication::sendPostedEvents();  // what the settings left to an event loop
}

/// As a program gets them: text up to a zero byte each, in the user's encoding.
QStringList wordsFrom(const QByteArray& input) {
    QStringList words;
    for (const QByteArray& line : input.split('\n'))
        words << QString::fromLocal8Bit(line.constData());
    if (words.size() > 1 && words.last().isEmpty())
        words.removeLast();  // the end of the last line
    return words;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QStringList words = wordsFrom(bytesOf(data, size));
    if (words.first() == QLatin1String("zephyrix-panel"))
        parsePanel(words);
    else if (words.first() == QLatin1String("zephyrix-feedd"))
        parseFeed(words);
    else
        runMainApplication(words);
    return 0;
}
