#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <QUrl>
#include <httplib.h>

namespace zephyrix::testing {

/// A weather service on loopback that answers as it is told to and remembers who asked for what.
class FakeService {
  public:
    using Answer = std::function<void(const httplib::Request&, httplib::Response&)>;

    explicit FakeService(Answer answer) : answer_(std::move(answer)) {
        server_.Get(".*", [this](const httplib::Request& request, httplib::Response& response) {
            const std::lock_guard lock(mutex_);
            requests_.push_back(request);
            answer_(request, response);
        });
        port_ = server_.bind_to_any_port("127.0.0.1");
        thread_ = std::thread([this] { server_.listen_after_bind(); });
        while (!server_.is_running())
            std::this_thread::yield();
    }
    ~FakeService() {
        server_.stop();
        thread_.join();
    }
    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;

    void answerWith(Answer answer) {
        const std::lock_guard lock(mutex_);
        answer_ = std::move(answer);
    }
    [[nodiscard]] QUrl address() const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port_));
    }
    [[nodiscard]] std::size_t count() const {
        const std::lock_guard lock(mutex_);
        return requests_.size();
    }
    [[nodiscard]] httplib::Request last() const {
        const std::lock_guard lock(mutex_);
        return requests_.back();
    }

  private:
    mutable std::mutex mutex_;  // guards what follows
    Answer answer_;
    std::vector<httplib::Request> requests_;

    httplib::Server server_;
    int port_ = 0;
    std::thread thread_;
};

}  // namespace zephyrix::testing
