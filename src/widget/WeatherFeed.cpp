#include "WeatherFeed.h"

#include <utility>

#include <QPointer>
#include <QUrl>

#include "foundation/MainQueue.h"
#include "transport/AddressRules.h"
#include "transport/TransportModule.h"

namespace zephyrix {

namespace {

QUrl addressFor(const QString& base, const Number& locationID) {
    return {base + QLatin1String("zephyrix/") + QLatin1String("WeatherFeed.php") +
                QLatin1String("?lid=") + locationID.text() + QLatin1String("&json=1&widget=1"),
            QUrl::StrictMode};
}

}  // namespace

WeatherFeed::WeatherFeed(BaseAddress baseAddress, OperationQueue& queue, const FeedLimits& limits,
                         std::unique_ptr<FeedTransport> transport)
    : baseAddress_(std::move(baseAddress)),
      queue_(queue),
      limits_(limits),
      transport_(transport ? std::move(transport) : std::make_unique<TransportModule>()) {}

void WeatherFeed::fetch(const Number& locationID, Completion completion) {
    baseAddress_([self = QPointer(this), locationID,
                  completion = std::move(completion)](const QString& base) mutable {
        if (self)
            self->request(base, locationID, std::move(completion));
    });
}

void WeatherFeed::request(const QString& base, const Number& locationID, Completion completion) {
    const QUrl address = addressFor(base, locationID);
    if (!isFeedAddress(address)) {
        MainQueue::dispatch([self = QPointer(this), completion = std::move(completion)] {
            if (self)
                completion(std::nullopt,
                           FeedError{FeedError::ownDomain, FeedError::invalidAddress, {}});
        });
        return;
    }
    auto handler = [this, locationID, completion = std::move(completion)](
                       const QByteArray& body, const std::optional<FeedError>& error) {
        read(body, error, locationID, completion);
    };
    transport_->get(address, limits_, std::move(handler));
}

void WeatherFeed::read(const QByteArray& body, const std::optional<FeedError>& error,
                       const Number& locationID, Completion completion) {
    queue_.addOperation([self = QPointer(this), body, error, locationID,
                         completion = std::move(completion)] {
        FeedAnswer answer = error ? FeedAnswer{{}, error} : FeedAnswer::fromBody(body, locationID);
        MainQueue::dispatch([self, answer = std::move(answer), completion] {
            if (self)
                completion(answer.document, answer.error);
        });
    });
}

}  // namespace zephyrix
