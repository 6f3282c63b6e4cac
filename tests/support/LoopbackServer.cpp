#include "LoopbackServer.h"

#include <algorithm>
#include <utility>

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace zephyrix::testing {

namespace {

constexpr std::chrono::seconds patience{20};
constexpr qint64 chunk = qint64{64} * 1024;

/// qCompress gives a zlib stream, which HTTP calls "deflate", behind a length of four bytes.
QByteArray deflated(const QByteArray& plain) {
    return qCompress(plain, 9).mid(4);
}

}  // namespace

LoopbackServer::LoopbackServer(Answer answer) : answer_(std::move(answer)) {
    connect(&server_, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* client = server_.nextPendingConnection())
            welcome(*client);
    });
    if (server_.listen(QHostAddress::LocalHost))
        baseAddress_ = QStringLiteral("http://127.0.0.1:%1/").arg(server_.serverPort());
}

void LoopbackServer::refuse() {
    server_.close();
    for (QTcpSocket* client : server_.findChildren<QTcpSocket*>())
        client->abort();
}

void LoopbackServer::welcome(QTcpSocket& client) {
    ++connections_;
    connect(&client, &QTcpSocket::disconnected, this, [this, &client] {
        --connections_;
        client.deleteLater();
    });
    connect(&client, &QTcpSocket::readyRead, this, [this, &client] { hear(client); });
}

void LoopbackServer::hear(QTcpSocket& client) {
    const QByteArray request = client.peek(client.bytesAvailable());
    if (client.state() != QAbstractSocket::ConnectedState || !request.endsWith("\r\n\r\n"))
        return;
    client.readAll();
    requests_ << request.left(request.indexOf("\r\n"));
    lastRequest_ = request;
    answer_(client);
}

LoopbackServer::Answer answerRaw(const QByteArray& bytes) {
    return [bytes](QTcpSocket& client) {
        client.write(bytes);
        client.disconnectFromHost();
    };
}

LoopbackServer::Answer answerBody(const QByteArray& body, int status, const QByteArray& headers) {
    const QByteArray answer = "HTTP/1.1 " + QByteArray::number(status) +
                              " Any\r\nContent-Length: " + QByteArray::number(body.size()) +
                              "\r\n" + headers + "\r\n" + body;
    return [answer](QTcpSocket& client) { client.write(answer); };
}

LoopbackServer::Answer answerNothing() {
    return [](QTcpSocket&) {};
}

LoopbackServer::Answer answerInDribbles(std::chrono::milliseconds interval) {
    return [interval](QTcpSocket& client) {
        client.write("HTTP/1.1 200 OK\r\n\r\n");
        auto* const drip = new QTimer(&client);
        QObject::connect(drip, &QTimer::timeout, &client, [&client] { client.write(" "); });
        drip->start(interval);
    };
}

LoopbackServer::Answer answerManyBytes(qint64 count) {
    return [count](QTcpSocket& client) {
        client.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(count) +
                     "\r\n\r\n");
        QObject::connect(&client, &QTcpSocket::bytesWritten, &client,
                         [&client, left = count]() mutable {
                             const qint64 next = std::min(left, chunk);
                             client.write(QByteArray(next, ' '));
                             left -= next;
                         });
    };
}

LoopbackServer::Answer answerCompressedZeros(qint64 count) {
    return answerBody(deflated(QByteArray(count, '\0')), 200, "Content-Encoding: deflate\r\n");
}

bool waitUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(patience);
    QTimer alarm;  // so that the loop below wakes up even when nothing happens
    alarm.start(std::chrono::milliseconds(100));
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QEventLoop().processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

}  // namespace zephyrix::testing
