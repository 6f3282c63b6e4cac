#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include "FeedError.h"

class QNetworkAccessManager;
class QNetworkReply;

namespace zephyrix {

/// What an answer may take at most. Past any of these the request is given up, as a transport
/// error.
struct FeedLimits {
    std::chrono::milliseconds silence{20'000};  // without a byte, counted from the request on
    std::chrono::milliseconds total{60'000};    // for the whole answer, however it trickles
    qint64 bytes = qint64{8} << 20;             // of the body, after decompression
    int redirects = 16;
};

/// One GET of the feed, past every cache, by https with every check of the certificate. A redirect
/// is followed to https, and from plain http to plain http on the same machine; to nothing else.
/// Status, headers and content type of the answer are not examined: whatever body arrives whole is
/// the answer, also that of a 404.
///
/// Destroyed before the end, it closes the connection and its handler is never called. The network
/// must outlive it. Main thread.
class FeedRequest : public QObject {
    Q_OBJECT

  public:
    using Handler = std::function<void(const QByteArray& body, std::optional<FeedError> error)>;

    /// Starts at once. The handler is called exactly once, from the event loop, with the body or
    /// with an error. The request then deletes itself.
    FeedRequest(QNetworkAccessManager& network, const QUrl& address, const FeedLimits& limits,
                Handler handler, QObject* parent);
    ~FeedRequest() override;

    /// Whether a feed may live there: http or https, with a host.
    [[nodiscard]] static bool isFeedAddress(const QUrl& address);
    /// Whether nobody else hears what is said to that address: "localhost", 127.0.0.0/8, ::1.
    [[nodiscard]] static bool isThisMachine(const QUrl& address);

  private:
    void send(const QUrl& address);
    void takeArrivedBytes();
    void giveUp(int code, const QString& reason);
    void finish();
    [[nodiscard]] std::optional<FeedError> transportError() const;
    [[nodiscard]] std::optional<FeedError> redirectError(const QUrl& from, const QUrl& to);

    QNetworkAccessManager& network_;
    FeedLimits limits_;
    Handler handler_;
    QNetworkReply* reply_ = nullptr;  // owned; null once it has ended
    QTimer silence_;
    QTimer total_;
    int redirects_ = 0;
    QByteArray body_;
    std::optional<FeedError> givenUp_;
};

}  // namespace zephyrix
