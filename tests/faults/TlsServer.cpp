#include "TlsServer.h"

#include <utility>

#include <QSslConfiguration>
#include <QSslKey>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/Programs.h"
#include "support/TestHome.h"

namespace zephyrix::testing {

namespace {

void runOpenssl(const QString& arguments) {
    const Outcome openssl = runCommand(QStringLiteral("openssl ") + arguments);
    EXPECT_EQ(openssl.exitCode, 0) << openssl.err.toStdString();
}

}  // namespace

Certificate::Certificate(const QString& host, int days) : folder(freshFolder()) {
    runOpenssl(QStringLiteral("req -new -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 "
                              "-nodes -keyout %2/key.pem -out %2/request.pem -subj /CN=feed "
                              "-addext subjectAltName=%1")
                   .arg(host, folder));
    runOpenssl(QStringLiteral("x509 -req -in %2/request.pem -signkey %2/key.pem -days %1 "
                              "-copy_extensions copy -out %2/certificate.pem")
                   .arg(days)
                   .arg(folder));
}

QSslCertificate Certificate::certificate() const {
    return QSslCertificate(contentOf(folder + QStringLiteral("/certificate.pem")));
}

TlsServer::TlsServer(const Certificate& certificate, QByteArray body) : body_(std::move(body)) {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificate.certificate());
    configuration.setPrivateKey(
        QSslKey(contentOf(certificate.folder + QStringLiteral("/key.pem")), QSsl::Ec));
    setSslConfiguration(configuration);
    connect(this, &QTcpServer::pendingConnectionAvailable, this, [this] {
        QTcpSocket* const client = nextPendingConnection();
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        connect(client, &QTcpSocket::readyRead, this, [this, client] {
            if (!client->readAll().endsWith("\r\n\r\n"))
                return;
            ++requests_;
            client->write("HTTP/1.1 " + head_ + "\r\nContent-Length: " +
                          QByteArray::number(body_.size()) + "\r\n\r\n" + body_);
        });
    });
    EXPECT_TRUE(listen(QHostAddress::LocalHost));
}

QString TlsServer::baseAddress() const {
    return QStringLiteral("https://127.0.0.1:%1/").arg(serverPort());
}

}  // namespace zephyrix::testing
