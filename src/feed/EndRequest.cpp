#include "EndRequest.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QString>

#include "foundation/FatalError.h"

namespace zephyrix {

namespace {

bool inputHasEnded() {
    std::array<char, 256> ignored{};
    const auto count = ::read(STDIN_FILENO, ignored.data(), ignored.size());
    return count == 0 || (count < 0 && errno != EINTR && errno != EAGAIN);
}

}  // namespace

EndRequest::EndRequest(Input input) : input_(input) {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGINT);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    signals_ = ::signalfd(-1, &set, SFD_CLOEXEC);
    if (signals_ < 0)
        fatalError(QStringLiteral("signals cannot be waited for"));
}

EndRequest::~EndRequest() {
    ::close(signals_);
}

void EndRequest::wait() const {
    std::array<pollfd, 2> watched = {{{signals_, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}}};
    const nfds_t count = input_ == Input::Watched ? 2 : 1;
    while (true) {
        if (::poll(watched.data(), count, -1) < 0)
            continue;
        if (watched[0].revents != 0)
            return;
        if (count == 2 && watched[1].revents != 0 && inputHasEnded())
            return;
    }
}

}  // namespace zephyrix
