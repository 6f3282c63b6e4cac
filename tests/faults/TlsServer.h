#pragma once

#include <QSslCertificate>
#include <QSslServer>
#include <QString>

namespace zephyrix::testing {

/// A certificate that openssl has just made and signed with its own key, for one host.
struct Certificate {
    /// A host as in "DNS:example.org" or "IP:127.0.0.1"; valid for that many days, -1 for one that
    /// has ended yesterday.
    Certificate(const QString& host, int days);

    [[nodiscard]] QSslCertificate certificate() const;

    QString folder;  // of "key.pem" and "certificate.pem"
};

/// A feed behind a certificate, on loopback: each request gets the same body.
class TlsServer : public QSslServer {
  public:
    TlsServer(const Certificate& certificate, QByteArray body);

    /// "https://127.0.0.1:40123/"
    [[nodiscard]] QString baseAddress() const;
    /// From now on, requests are sent there.
    void redirectTo(const QString& address) {
        head_ = "302 Found\r\nLocation: " + address.toUtf8();
    }
    [[nodiscard]] int requests() const noexcept { return requests_; }

  private:
    QByteArray head_ = "200 OK";
    QByteArray body_;
    int requests_ = 0;
};

}  // namespace zephyrix::testing
