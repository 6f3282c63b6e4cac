#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QByteArray>
#include <QUrl>

#include "FeedError.h"

namespace zephyrix {

/// What an answer may take at most. Past any of these the request is given up, as a transport
/// error.
struct FeedLimits {
    std::chrono::milliseconds silence{20'000};  // without a byte, counted from the request on
    std::chrono::milliseconds total{60'000};    // for the whole answer, however it trickles
    qint64 bytes = qint64{8} << 20;             // of the body, after decompression
    int redirects = 16;
};

/// How the feed is asked. Destroyed, it closes the connections of what is under way, and their
/// handlers are never called. Main thread.
class FeedTransport {
  public:
    using Handler = std::function<void(const QByteArray& body, std::optional<FeedError> error)>;

    FeedTransport() = default;
    virtual ~FeedTransport() = default;
    FeedTransport(const FeedTransport&) = delete;
    FeedTransport& operator=(const FeedTransport&) = delete;

    /// Starts one GET of a feed address and returns at once. The handler is called exactly once,
    /// from the event loop, with the body or with an error.
    virtual void get(const QUrl& address, const FeedLimits& limits, Handler handler) = 0;
};

}  // namespace zephyrix
