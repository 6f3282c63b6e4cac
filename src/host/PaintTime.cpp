#include "PaintTime.h"

#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QFile>

namespace zephyrix {

namespace {

constexpr double nanosecondsAMillisecond = 1e6;
constexpr double kilobytesAMegabyte = 1024.0;

qint64 nanosecondsOf(clockid_t clock) {
    constexpr qint64 nanosecondsASecond = 1'000'000'000;
    timespec now{};
    ::clock_gettime(clock, &now);
    return now.tv_sec * nanosecondsASecond + now.tv_nsec;
}

/// Megabytes that were resident at most. Not what getrusage() says, which counts the launcher too.
double peakMemory() {
    constexpr std::string_view name = "VmHWM:";
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name))
            return std::stod(line.substr(name.size())) / kilobytesAMegabyte;
    return 0.0;
}

}  // namespace

void PaintTime::noteStart(char** arguments) {
    if (qEnvironmentVariableIsSet(startVariable))
        return;
    qputenv(startVariable, QByteArray::number(nanosecondsOf(CLOCK_MONOTONIC)));
    // By its own path, so that it keeps its name.
    const QByteArray program =
        QFile::encodeName(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    ::execv(program.constData(), arguments);
}

PaintTime::PaintTime() : start_(qEnvironmentVariable(startVariable).toLongLong()) {
    qunsetenv(startVariable);  // it is not that of the programs which the panel starts
    awaitPaint(QStringLiteral("first paint"));
}

void PaintTime::awaitPaint(const QString& name) {
    awaited_ << name;
    qApp->installEventFilter(this);
}

// The window's picture reaches the display before control returns to the event loop, and there this
// event comes first.
bool PaintTime::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && watched->isWidgetType() && !awaited_.isEmpty()) {
        qApp->removeEventFilter(this);
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }
    return false;
}

void PaintTime::customEvent(QEvent* /*event*/) {
    const auto wall = static_cast<double>(nanosecondsOf(CLOCK_MONOTONIC) - start_);
    const auto busy = static_cast<double>(nanosecondsOf(CLOCK_PROCESS_CPUTIME_ID));
    for (const QString& name : std::exchange(awaited_, {}))
        std::printf("%s: %.2f ms, processor %.2f ms, memory %.1f MB\n", qUtf8Printable(name),
                    wall / nanosecondsAMillisecond, busy / nanosecondsAMillisecond, peakMemory());
    std::fflush(stdout);
}

}  // namespace zephyrix
