// What all targets run in, whatever the machine has: no display, an empty home, the zone
// Europe/Berlin, English texts, the same moment.
#include "Surroundings.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "foundation/Clock.h"

namespace zephyrix::fuzz {

namespace {

constexpr double moment = 1433152800.0;  // 2015-06-01 10:00:00 UTC, as in the seeds

void setSurroundings(const QByteArray& folder) {
    qputenv("HOME", folder);
    qputenv("XDG_CONFIG_HOME", folder + "/config");
    qputenv("XDG_CACHE_HOME", folder + "/cache");
    qputenv("XDG_DATA_HOME", folder + "/data");
    qputenv("XDG_RUNTIME_DIR", folder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "Europe/Berlin");
    qputenv("LANG", "en_US.UTF-8");
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "DBUS_SESSION_BUS_ADDRESS",
                             "DISPLAY", "WAYLAND_DISPLAY", "QT_SCALE_FACTOR"})
        qunsetenv(name);
}

}  // namespace

QString home() {
    static const QTemporaryDir folder;
    return folder.path();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
           "a file of this run can be written");
}

}  // namespace zephyrix::fuzz

// The name by which the leak check finds it. The font library keeps what it has read until the
// process ends.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

// The name by which libFuzzer finds it; the replay calls it, too.
// NOLINTNEXTLINE(readability-non-const-parameter): the signature is libFuzzer's
extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    using namespace zephyrix;
    fuzz::setSurroundings(fuzz::home().toUtf8());
    // Never ended: the end of libFuzzer is exit(), far from here.
    static const auto* const application = new QApplication(*count, *arguments);
    Q_UNUSED(application)
    QCoreApplication::setApplicationName(QStringLiteral("zephyrix-panel"));
    static const ReplacedClock clock([] { return Instant::fromSecondsSince1970(fuzz::moment); });
    return 0;
}
