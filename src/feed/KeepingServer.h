#pragma once

#include <atomic>
#include <cstddef>

#include <httplib.h>

namespace zephyrix {

class BufferedConnection;

/// The library's server, with connections that are kept open for further requests where that saves
/// something. A connection has a thread, so it is kept while others are served, too, and while no
/// other waits for a thread: a lone client, as the panel on a desktop is, gets its answer and the
/// end of the connection together, and nobody has to wake up for that later.
///
/// A request that announces a body ends its connection, as bodies are not read; so does one that is
/// not understood.
class KeepingServer : public httplib::Server {
  public:
    KeepingServer();

    /// The library lets only five clients wait for a connection; a sixth would try again after a
    /// second. To be called once the server has its port.
    void widenQueue() const;

  private:
    bool process_and_close_socket(socket_t socket) override;
    [[nodiscard]] bool answerRequest(BufferedConnection& connection, bool isLast);
    [[nodiscard]] bool isWorthKeeping() const noexcept;

    socket_t listening_ = INVALID_SOCKET;
    std::atomic<std::size_t> connections_ = 0;  // those that wait for a thread, too
};

}  // namespace zephyrix
