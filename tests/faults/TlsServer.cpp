#include "TlsServer.h"

#include <utility>

#include <QFile>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "support/TestHome.h"

namespace zephyrix::testing {

namespace {

void runOpenssl(const QString& folder, const QString& arguments) {
    QProcess openssl;
    openssl.setWorkingDirectory(folder);
    openssl.start(QStringLiteral("openssl"), arguments.split(QLatin1Char(' ')));
    EXPECT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0)
        << openssl.readAllStandardError().toStdString();
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

}  // namespace

Certificate::Certificate(const QString& host, int days) : folder(freshFolder()) {
    runOpenssl(folder, QStringLiteral("req -new -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 "
                                      "-nodes -keyout key.pem -out request.pem -subj /CN=feed "
                                      "-addext subjectAltName=%1")
                           .arg(host));
    runOpenssl(folder, QStringLiteral("x509 -req -in request.pem -signkey key.pem -days %1 "
                                      "-copy_extensions copy -out certificate.pem")
                           .arg(days));
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
