#pragma once

#include <chrono>
#include <functional>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

namespace zephyrix::testing {

/// A real HTTP server on loopback that does to a client what bad servers do. It lives in the test's
/// own event loop and keeps the first line of every request.
class LoopbackServer : public QObject {
  public:
    /// What happens to a connection whose request has arrived. The socket lives until it is closed
    /// by either side.
    using Answer = std::function<void(QTcpSocket& client)>;

    explicit LoopbackServer(Answer answer);

    void answerWith(Answer answer) { answer_ = std::move(answer); }
    /// Nobody listens any more: connections are closed, new ones refused.
    void refuse();

    /// Of a long row of requests, those up to now.
    void forgetRequests() { requests_ = {}; }

    /// "http://127.0.0.1:40123/"
    [[nodiscard]] QString baseAddress() const { return baseAddress_; }
    /// "GET /zephyrix/WeatherFeed.php?lid=5&json=1&widget=1 HTTP/1.1"
    [[nodiscard]] const QList<QByteArray>& requestLines() const noexcept { return requests_; }
    /// The last request with all of its headers.
    [[nodiscard]] const QByteArray& lastRequest() const noexcept { return lastRequest_; }
    /// How many clients are connected now.
    [[nodiscard]] int connections() const noexcept { return connections_; }

  private:
    void welcome(QTcpSocket& client);
    void hear(QTcpSocket& client);

    QTcpServer server_;
    Answer answer_;
    QString baseAddress_;
    QList<QByteArray> requests_;
    QByteArray lastRequest_;
    int connections_ = 0;
};

/// A whole answer with its length; the connection stays open. (When the end of the connection comes
/// together with the answer, the client may drop both and ask again, so that requests cannot be
/// counted.)
[[nodiscard]] LoopbackServer::Answer answerBody(const QByteArray& body, int status = 200,
                                                const QByteArray& headers = {});
/// These bytes as they stand, then the end of the connection.
[[nodiscard]] LoopbackServer::Answer answerRaw(const QByteArray& bytes);
/// Nothing, with the connection held open.
[[nodiscard]] LoopbackServer::Answer answerNothing();
/// The head of an answer, then one byte of the body at each interval, without end.
[[nodiscard]] LoopbackServer::Answer answerInDribbles(std::chrono::milliseconds interval);
/// A body of this many bytes, sent as fast as the client takes it.
[[nodiscard]] LoopbackServer::Answer answerManyBytes(qint64 count);
/// As many zeros as asked for, compressed by gzip to a thousandth.
[[nodiscard]] LoopbackServer::Answer answerCompressedZeros(qint64 count);

/// Runs the event loop until the condition holds. False when it still does not after 20 seconds.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition);

}  // namespace zephyrix::testing
