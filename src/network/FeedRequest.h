#pragma once

#include <optional>

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include "transport/FeedTransport.h"

class QNetworkAccessManager;
class QNetworkReply;

namespace zephyrix {

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
    using Handler = FeedTransport::Handler;

    /// Starts at once. The handler is called exactly once, from the event loop, with the body or
    /// with an error. The request then deletes itself.
    FeedRequest(QNetworkAccessManager& network, const QUrl& address, const FeedLimits& limits,
                Handler handler, QObject* parent);
    ~FeedRequest() override;

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
