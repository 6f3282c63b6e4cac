#pragma once

#include <QNetworkAccessManager>
#include <QObject>

#include "transport/FeedTransport.h"

namespace zephyrix {

/// Asks the feed with one FeedRequest each. Main thread.
class NetworkTransport : public FeedTransport {
  public:
    void get(const QUrl& address, const FeedLimits& limits, Handler handler) override;

  private:
    QNetworkAccessManager network_;
    QObject requests_;  // the parent of those under way: they end before the network does
};

}  // namespace zephyrix
