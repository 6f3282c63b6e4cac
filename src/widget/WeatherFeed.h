#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QObject>
#include <QString>

#include "FeedAnswer.h"
#include "foundation/OperationQueue.h"
#include "transport/FeedTransport.h"

namespace zephyrix {

/// Fetches weather documents from the feed server. Requests run on the main thread's event loop,
/// their answers are read on an operation queue. Nothing of the network is loaded before the first
/// fetch. Main thread.
class WeatherFeed : public QObject {
    Q_OBJECT

  public:
    /// Finds the feed server's base address, which ends with "/", and hands it on, at once or later
    /// on the main thread; an empty text when there is none. Asked at each fetch.
    using BaseAddress = std::function<void(std::function<void(const QString& base)> then)>;
    using Completion =
        std::function<void(std::optional<WeatherData> document, std::optional<FeedError> error)>;

    /// Without a transport of its own it uses that of the program's module.
    WeatherFeed(BaseAddress baseAddress, OperationQueue& queue, const FeedLimits& limits,
                std::unique_ptr<FeedTransport> transport = nullptr);

    /// Starts one request and returns at once. The completion is called exactly once, later, on the
    /// main thread; never when the feed object has ended before. It gets a document, be it empty,
    /// together with the error if there is one; for an address that is not valid only the error.
    void fetch(const Number& locationID, Completion completion);

  private:
    void request(const QString& base, const Number& locationID, Completion completion);
    void read(const QByteArray& body, const std::optional<FeedError>& error,
              const Number& locationID, Completion completion);

    BaseAddress baseAddress_;
    OperationQueue& queue_;
    FeedLimits limits_;
    std::unique_ptr<FeedTransport> transport_;
};

}  // namespace zephyrix
