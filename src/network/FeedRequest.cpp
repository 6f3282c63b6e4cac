#include "FeedRequest.h"

#include <memory>
#include <utility>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QScopedPointer>

#include "transport/AddressRules.h"

namespace zephyrix {

namespace {

// What may arrive before it is taken, in bytes: else a fast server fills the memory meanwhile.
constexpr qint64 waiting = qint64{512} * 1024;

QNetworkRequest requestFor(const QUrl& address) {
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    return request;
}

/// Whether the error only repeats the answer's status code, as for a 404 that came whole. The code
/// of an unknown status is also that of a body which could not be decompressed.
bool isStatusError(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status < 400)
        return false;
    const QNetworkReply::NetworkError error = reply.error();
    if (error == QNetworkReply::UnknownContentError)
        return !reply.hasRawHeader("Content-Encoding");
    return error == QNetworkReply::ProtocolInvalidOperationError ||
           error >= QNetworkReply::InternalServerError ||
           (error >= QNetworkReply::ContentAccessDenied &&
            error < QNetworkReply::UnknownContentError);
}

/// A redirect must not lead an answer, or the question for it, where others can read it.
bool isAsSafe(const QUrl& from, const QUrl& to) {
    if (to.scheme() == QLatin1String("https"))
        return true;
    const bool sameMachine = from.host() == to.host() || (isThisMachine(from) && isThisMachine(to));
    return from.scheme() == QLatin1String("http") && sameMachine;
}

}  // namespace

FeedRequest::FeedRequest(QNetworkAccessManager& network, const QUrl& address,
                         const FeedLimits& limits, Handler handler, QObject* parent)
    : QObject(parent), network_(network), limits_(limits), handler_(std::move(handler)) {
    for (QTimer* deadline : {&silence_, &total_}) {
        deadline->setSingleShot(true);
        connect(deadline, &QTimer::timeout, this, [this] {
            giveUp(QNetworkReply::TimeoutError, QStringLiteral("The feed took too long"));
        });
    }
    silence_.setInterval(limits_.silence);
    total_.start(limits_.total);
    send(address);
}

FeedRequest::~FeedRequest() {
    if (reply_ == nullptr)
        return;
    reply_->disconnect(this);
    reply_->abort();
}

void FeedRequest::send(const QUrl& address) {
    body_.clear();
    silence_.start();
    reply_ = network_.get(requestFor(address));
    reply_->setParent(this);
    reply_->setReadBufferSize(waiting);
    connect(reply_, &QNetworkReply::metaDataChanged, &silence_, qOverload<>(&QTimer::start));
    connect(reply_, &QNetworkReply::readyRead, this, &FeedRequest::takeArrivedBytes);
    connect(reply_, &QNetworkReply::finished, this, &FeedRequest::finish);
}

void FeedRequest::takeArrivedBytes() {
    silence_.start();
    body_ += reply_->readAll();
    if (body_.size() > limits_.bytes)
        giveUp(QNetworkReply::UnknownContentError, QStringLiteral("The answer is too large"));
}

void FeedRequest::giveUp(int code, const QString& reason) {
    givenUp_ = FeedError{FeedError::transportDomain, code, reason};
    reply_->abort();  // comes back as finish()
}

void FeedRequest::finish() {
    silence_.stop();
    auto error = givenUp_ ? givenUp_ : transportError();
    const std::unique_ptr<QNetworkReply, QScopedPointerDeleteLater> reply(
        std::exchange(reply_, nullptr));
    reply->disconnect(this);
    const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!error && !target.isEmpty()) {
        error = redirectError(reply->url(), reply->url().resolved(target));
        if (!error)
            return send(reply->url().resolved(target));
    }
    total_.stop();
    deleteLater();
    handler_(error ? QByteArray() : body_, error);
}

std::optional<FeedError> FeedRequest::transportError() const {
    if (reply_->error() == QNetworkReply::NoError || isStatusError(*reply_))
        return std::nullopt;
    return FeedError{FeedError::transportDomain, reply_->error(), reply_->errorString()};
}

std::optional<FeedError> FeedRequest::redirectError(const QUrl& from, const QUrl& to) {
    if (++redirects_ > limits_.redirects)
        return FeedError{FeedError::transportDomain, QNetworkReply::TooManyRedirectsError,
                         QStringLiteral("The feed redirects again and again")};
    if (!isFeedAddress(to) || !isAsSafe(from, to))
        return FeedError{FeedError::transportDomain, QNetworkReply::InsecureRedirectError,
                         QStringLiteral("The feed redirects to %1").arg(to.toDisplayString())};
    return std::nullopt;
}

}  // namespace zephyrix
