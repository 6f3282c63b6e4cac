#include "StartSocket.h"

#include <cerrno>
#include <cstring>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

#include <QFile>

namespace zephyrix::StartSocket {

namespace {

constexpr timeval patience{2, 0};  // seconds that a running panel has to take the request

/// A socket that is closed with it.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        const int error = errno;
        if (number_ >= 0)
            ::close(number_);
        errno = error;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int number() const noexcept { return number_; }
    [[nodiscard]] int release() noexcept { return std::exchange(number_, -1); }

  private:
    int number_;
};

/// Nothing for a path that does not fit into an address.
std::optional<sockaddr_un> addressOf(const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) {
        errno = ENAMETOOLONG;
        return std::nullopt;
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
}

/// The same call again for as long as signals interrupt it.
template <class Call>
auto uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

const sockaddr* plain(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address);
}

}  // namespace

Reply ask(const QString& path) {
    const auto address = addressOf(QFile::encodeName(path));
    const Descriptor other(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!address || other.number() < 0)
        return Reply::Nobody;
    // Of a connection's two ends, the one waits to be let in and the other for the answer.
    ::setsockopt(other.number(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    ::setsockopt(other.number(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    if (uninterrupted(
            [&] { return ::connect(other.number(), plain(*address), sizeof(sockaddr_un)); }) != 0)
        return Reply::Nobody;
    char byte = 0;
    const auto count = uninterrupted([&] { return ::read(other.number(), &byte, 1); });
    return count < 0 && errno == EAGAIN ? Reply::Silence : Reply::Heard;
}

int listen(const QString& path) {
    const QByteArray file = QFile::encodeName(path);
    const auto address = addressOf(file);
    if (!address)
        return -1;
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (socket.number() < 0)
        return -1;
    ::unlink(file.constData());
    // The file gets the mode of its socket, so that nobody else can connect at any moment.
    if (::fchmod(socket.number(), S_IRUSR | S_IWUSR) != 0 ||
        ::bind(socket.number(), plain(*address), sizeof(sockaddr_un)) != 0 ||
        ::listen(socket.number(), SOMAXCONN) != 0)
        return -1;
    return socket.release();
}

bool answer(int listening) {
    bool anyone = false;
    for (;;) {
        const Descriptor other(
            uninterrupted([&] { return ::accept4(listening, nullptr, nullptr, SOCK_CLOEXEC); }));
        if (other.number() < 0)
            return anyone;
        anyone = true;
    }
}

}  // namespace zephyrix::StartSocket
