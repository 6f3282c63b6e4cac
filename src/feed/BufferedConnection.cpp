#include "BufferedConnection.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>

namespace zephyrix {

namespace {

constexpr std::chrono::seconds silence(5);  // in the midst of a request or an answer

}  // namespace

bool BufferedConnection::waitFor(short what, std::chrono::milliseconds patience) const {
    pollfd watched{socket_, what, 0};
    int ready = 0;
    do {
        ready = ::poll(&watched, 1, static_cast<int>(patience.count()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

bool BufferedConnection::waitForRequest(std::chrono::milliseconds patience) const {
    return !unread_.empty() || waitFor(POLLIN, patience);
}

bool BufferedConnection::flush() {
    std::string_view rest = written_;
    while (!rest.empty()) {
        if (!waitFor(POLLOUT, silence))
            return false;
        const ssize_t sent = ::send(socket_, rest.data(), rest.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        rest.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(sent, 0)));
    }
    written_.clear();
    return true;
}

bool BufferedConnection::is_readable() const {
    return waitForRequest(silence);
}

ssize_t BufferedConnection::read(char* bytes, std::size_t size) {
    if (unread_.empty()) {
        if (!is_readable())
            return -1;
        const ssize_t count = ::recv(socket_, read_.data(), read_.size(), 0);
        if (count <= 0)
            return count;
        unread_ = {read_.data(), static_cast<std::size_t>(count)};
    }
    const std::size_t count = unread_.copy(bytes, size);
    unread_.remove_prefix(count);
    return static_cast<ssize_t>(count);
}

ssize_t BufferedConnection::write(const char* bytes, std::size_t size) {
    written_.append(bytes, size);
    return static_cast<ssize_t>(size);
}

void BufferedConnection::get_remote_ip_and_port(std::string& address, int& port) const {
    address.clear();
    port = 0;
}

void BufferedConnection::get_local_ip_and_port(std::string& address, int& port) const {
    get_remote_ip_and_port(address, port);
}

}  // namespace zephyrix
