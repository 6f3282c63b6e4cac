#include "TerminationSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include <QSocketNotifier>

#include "foundation/FatalError.h"

namespace zephyrix {

namespace {

constexpr std::array handled{SIGTERM, SIGINT, SIGHUP};

std::array<int, 2> channel{-1, -1};  // from the handler to the event loop

void tell(int /*signal*/) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(channel[1], &byte, 1);
    errno = before;
}

}  // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
    if (::pipe2(channel.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        fatalError(QStringLiteral("no pipe for signals can be made"));
    auto* const notifier = new QSocketNotifier(channel[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::takeArrived);
    struct sigaction action {};
    action.sa_handler = tell;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : handled)
        ::sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : handled)
        std::signal(signal, SIG_DFL);
    for (int& end : channel)
        ::close(std::exchange(end, -1));
}

void TerminationSignals::takeArrived() {
    char byte = 0;
    while (::read(channel[0], &byte, 1) == 1)
        Q_EMIT received();
}

}  // namespace zephyrix
