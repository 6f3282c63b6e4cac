#pragma once

#include <stdexcept>

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace zephyrix {

/// A GET.
struct HttpRequest {
    QUrl address;
    QByteArray userAgent;
    QByteArray ifModifiedSince{};  // left out when empty
};

/// What came back, with the headers that are looked at as they were sent; empty where they were
/// not.
struct HttpAnswer {
    int status = 0;
    QByteArray body{};  // decompressed
    QByteArray date{};
    QByteArray expires{};
    QByteArray cacheControl{};
    QByteArray lastModified{};
    QByteArray retryAfter{};
};

/// No whole answer came; what() says why.
class HttpFailure : public std::runtime_error {
  public:
    explicit HttpFailure(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// The way out to weather services.
class HttpClient {
  public:
    HttpClient() = default;
    virtual ~HttpClient() = default;
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;

    /// Waits for the answer, whatever its status; from 400 on the body may be of no use. Throws
    /// HttpFailure. Any thread.
    [[nodiscard]] virtual HttpAnswer get(const HttpRequest& request) const = 0;
};

}  // namespace zephyrix
