#include "NetworkTransport.h"

#include <utility>

#include "FeedRequest.h"

namespace zephyrix {

void NetworkTransport::get(const QUrl& address, const FeedLimits& limits, Handler handler) {
    new FeedRequest(network_, address, limits, std::move(handler), &requests_);
}

}  // namespace zephyrix
