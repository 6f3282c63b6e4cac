#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include <httplib.h>

namespace zephyrix {

/// A client's connection as the HTTP library reads and writes it. What is written is kept until
/// flush() and goes out at once: a head and a body that are sent one after the other cost a packet
/// more, and the second may have to wait for the client's word that it got the first.
///
/// The socket is not owned. One thread at a time.
class BufferedConnection : public httplib::Stream {
  public:
    explicit BufferedConnection(socket_t socket) : socket_(socket) {}

    /// Waits for the first bytes of a request, or for the end of the connection; false when neither
    /// comes in time.
    [[nodiscard]] bool waitForRequest(std::chrono::milliseconds patience) const;
    /// Sends what was written; false when the client does not take it.
    [[nodiscard]] bool flush();

    [[nodiscard]] bool is_readable() const override;
    [[nodiscard]] bool is_writable() const override { return true; }
    /// -1 when nothing comes for five seconds; 0 at the end.
    ssize_t read(char* bytes, std::size_t size) override;
    ssize_t write(const char* bytes, std::size_t size) override;
    using Stream::write;
    /// Nobody asks where a client on this machine comes from.
    void get_remote_ip_and_port(std::string& address, int& port) const override;
    void get_local_ip_and_port(std::string& address, int& port) const override;
    [[nodiscard]] socket_t socket() const override { return socket_; }

  private:
    [[nodiscard]] bool waitFor(short what, std::chrono::milliseconds patience) const;

    socket_t socket_;
    std::array<char, 4096> read_{};
    std::string_view unread_;  // the rest of read_
    std::string written_;
};

}  // namespace zephyrix
