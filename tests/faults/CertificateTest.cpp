// Which certificates a feed may have.
#include <optional>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <gtest/gtest.h>

#include "TlsServer.h"
#include "network/FeedRequest.h"
#include "support/LoopbackServer.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// While it lives, this machine trusts whoever has signed the certificate.
class Trust {
  public:
    explicit Trust(const QSslCertificate& certificate) {
        QSslConfiguration trusting = before_;
        trusting.addCaCertificate(certificate);
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    ~Trust() { QSslConfiguration::setDefaultConfiguration(before_); }
    Trust(const Trust&) = delete;
    Trust& operator=(const Trust&) = delete;

  private:
    QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
};

struct Answer {
    QByteArray body;
    std::optional<FeedError> error;
};

Answer fetch(const QString& address) {
    QNetworkAccessManager network;
    QObject requests;
    std::optional<Answer> answer;
    new FeedRequest(
        network, QUrl(address), {},
        [&](const QByteArray& body, std::optional<FeedError> error) {
            answer = {body, std::move(error)};
        },
        &requests);
    EXPECT_TRUE(waitUntil([&] { return answer.has_value(); })) << address.toStdString();
    return answer.value_or(Answer());
}

struct Case {
    const char* what;
    const char* host;
    int days;
    bool trusted;
    bool taken;
};

TEST(Certificate, HasToBeTrustedInForceAndOfThisHost) {
    const Certificate stranger(QStringLiteral("IP:127.0.0.1"), 1);
    for (const Case& row : {
             Case{"all is well", "IP:127.0.0.1", 1, true, true},
             Case{"signed by nobody known", "IP:127.0.0.1", 1, false, false},
             Case{"ended yesterday", "IP:127.0.0.1", -1, true, false},
             Case{"of another host", "DNS:example.org", 1, true, false},
         }) {
        const Certificate own(QLatin1String(row.host), row.days);
        const TlsServer server(own, "{}");
        const Trust trust((row.trusted ? own : stranger).certificate());
        const Answer answer = fetch(server.baseAddress());
        EXPECT_EQ(answer.error.has_value(), !row.taken)
            << row.what << ": " << (answer.error ? answer.error->description().toStdString() : "");
        EXPECT_EQ(answer.body, row.taken ? QByteArray("{}") : QByteArray()) << row.what;
        EXPECT_EQ(server.requests(), row.taken ? 1 : 0) << row.what << ": nothing is said to it";
        EXPECT_EQ(answer.error ? answer.error->code : 0,
                  row.taken ? 0 : QNetworkReply::SslHandshakeFailedError)
            << row.what;
    }
}

TEST(Certificate, RedirectFromHttpsToPlainHttpIsRefused) {
    LoopbackServer plain(answerBody("[1]"));
    const Certificate own(QStringLiteral("IP:127.0.0.1"), 1);
    TlsServer server(own, "");
    server.redirectTo(plain.baseAddress());
    const Trust trust(own.certificate());
    const Answer answer = fetch(server.baseAddress());
    ASSERT_TRUE(answer.error);
    EXPECT_EQ(answer.error->code, QNetworkReply::InsecureRedirectError);
    EXPECT_TRUE(plain.requestLines().isEmpty());
}

}  // namespace
}  // namespace zephyrix
