#include "KeepingServer.h"

#include <chrono>
#include <functional>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

#include "BufferedConnection.h"

namespace zephyrix {

namespace {

constexpr std::size_t mostConnections = 32;  // that are served at a time: threads
constexpr std::size_t mostRequests = 1000;   // of a connection: then somebody else has its turn
constexpr std::chrono::seconds longestIdling(2);

/// The library's threads, with a count of the connections that they have or are to have.
class CountingPool : public httplib::ThreadPool {
  public:
    explicit CountingPool(std::atomic<std::size_t>& connections)
        : ThreadPool(mostConnections), connections_(connections) {}

    void enqueue(std::function<void()> serve) override {
        ++connections_;
        ThreadPool::enqueue(std::move(serve));
    }

  private:
    std::atomic<std::size_t>& connections_;
};

/// Unlike the library's own choice, a port that another server has is not shared with it.
void reuseOnlyFreedAddress(socket_t socket) {
    const int yes = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
}

}  // namespace

KeepingServer::KeepingServer() {
    set_socket_options([this](socket_t socket) {
        reuseOnlyFreedAddress(socket);
        listening_ = socket;
    });
    set_tcp_nodelay(true);
    set_keep_alive_max_count(mostRequests);
    set_keep_alive_timeout(longestIdling.count());
    new_task_queue = [this] { return new CountingPool(connections_); };  // the library deletes it
}

void KeepingServer::widenQueue() const {
    ::listen(listening_, SOMAXCONN);
}

bool KeepingServer::isWorthKeeping() const noexcept {
    const std::size_t connections = connections_;
    return connections > 1 && connections <= mostConnections;
}

/// False when the client will send no more requests or what follows may not be one.
bool KeepingServer::answerRequest(BufferedConnection& connection, bool isLast) {
    bool hasBody = true;  // for all that is known, until its head is understood
    bool wantsEnd = false;
    const auto takeHead = [&](httplib::Request& request) {
        hasBody = request.has_header("Content-Length") || request.has_header("Transfer-Encoding");
        if (hasBody)
            request.headers.emplace("Connection", "close");  // so that the answer says so
    };
    const bool isAnswered = process_request(connection, isLast, wantsEnd, takeHead);
    return connection.flush() && isAnswered && !hasBody && !wantsEnd && !isLast;
}

bool KeepingServer::process_and_close_socket(socket_t socket) {
    BufferedConnection connection(socket);
    std::size_t left = mostRequests;
    bool goesOn = true;
    while (goesOn && svr_sock_ != INVALID_SOCKET && connection.waitForRequest(longestIdling))
        goesOn = answerRequest(connection, --left == 0 || !isWorthKeeping());
    --connections_;  // before the client knows, who may come back at once
    ::shutdown(socket, SHUT_RDWR);
    ::close(socket);
    return true;
}

}  // namespace zephyrix
