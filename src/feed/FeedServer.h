#pragma once

#include <memory>
#include <optional>

#include "DocumentKeeper.h"
#include "PlaceDirectory.h"

namespace zephyrix {

/// Answers "GET /zephyrix/WeatherFeed.php?lid=N&json=1&widget=1" on the loopback interface, as
/// docs/feed-format.md describes it, with what caches on the way need to know, and writes one line
/// a request to the log: time, method, path, status, bytes of the body. Documents and places must
/// outlive it.
class FeedServer {
  public:
    FeedServer(const DocumentKeeper& documents, const PlaceDirectory& places);
    ~FeedServer();
    FeedServer(const FeedServer&) = delete;
    FeedServer& operator=(const FeedServer&) = delete;

    /// Takes a port of 127.0.0.1, 0 for any free one, and gives back which; nothing when it cannot
    /// be had. Connections are accepted from now on and answered by serve().
    [[nodiscard]] std::optional<int> listenOn(int port);

    /// Answers requests, on several threads, until stop() is called on another thread and the
    /// requests under way are done.
    void serve();

    /// Does nothing before serve() has begun.
    void stop();

  private:
    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace zephyrix
