#pragma once

#include <chrono>

#include "HttpClient.h"

namespace zephyrix {

/// What an answer may take at most; past any of these there is none.
struct HttpLimits {
    // From the request on, however the answer trickles. Three services asked one after the other
    // stay within the 20 seconds of silence that the panel bears.
    std::chrono::milliseconds total{6'000};
    qint64 bytes = 4LL * 1024 * 1024;  // of the body, after decompression
    int redirects = 3;                 // none from https to http
};

/// The client over the network: certificates are checked against the system's, compressed answers
/// unpacked, nothing kept, no cookies. Needs the QCoreApplication, but no event loop of its thread.
class NetworkHttpClient : public HttpClient {
  public:
    explicit NetworkHttpClient(HttpLimits limits = {}) : limits_(limits) {}

    [[nodiscard]] HttpAnswer get(const HttpRequest& request) const override;

  private:
    HttpLimits limits_;
};

}  // namespace zephyrix
