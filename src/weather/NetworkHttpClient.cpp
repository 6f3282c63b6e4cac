#include "NetworkHttpClient.h"

#include <memory>

#include <QEventLoop>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace zephyrix {

namespace {

QNetworkRequest networkRequest(const HttpRequest& request, const HttpLimits& limits) {
    QNetworkRequest network(request.address);
    network.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    network.setMaximumRedirectsAllowed(limits.redirects);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute})
        network.setAttribute(attribute, QNetworkRequest::Manual);
    network.setRawHeader("User-Agent", request.userAgent);
    network.setRawHeader("Accept", "application/json");
    if (!request.ifModifiedSince.isEmpty())
        network.setRawHeader("If-Modified-Since", request.ifModifiedSince);
    return network;
}

/// Runs until the answer is whole or given up; the body so far, and why it was given up.
struct Arrival {
    QByteArray body{};
    QString givenUp{};
};

Arrival await(QNetworkReply& reply, const HttpLimits& limits) {
    Arrival arrival;
    QEventLoop loop;
    QTimer deadline;
    const auto giveUp = [&](const char* why) {
        arrival.givenUp = QLatin1String(why);
        reply.abort();  // ends in finished()
    };
    const auto take = [&] {
        arrival.body += reply.readAll();
        if (arrival.body.size() > limits.bytes && arrival.givenUp.isEmpty())
            giveUp("the answer is too large");
    };
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, &loop, [&] { giveUp("it takes too long"); });
    QObject::connect(&reply, &QNetworkReply::readyRead, &loop, take);
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    deadline.start(limits.total);
    if (!reply.isFinished())
        loop.exec();
    if (arrival.givenUp.isEmpty())
        take();
    return arrival;
}

}  // namespace

HttpAnswer NetworkHttpClient::get(const HttpRequest& request) const {
    QNetworkAccessManager network;
    if (QHostAddress(request.address.host()).isLoopback())
        network.setProxy(QNetworkProxy::NoProxy);
    const std::unique_ptr<QNetworkReply> reply(network.get(networkRequest(request, limits_)));
    Arrival arrival = await(*reply, limits_);
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!arrival.givenUp.isEmpty())
        throw HttpFailure(arrival.givenUp);
    // From 400 on the error may only repeat the status, and the status alone tells enough.
    const bool isRefusal = status >= 400;
    if (reply->error() != QNetworkReply::NoError && !isRefusal)
        throw HttpFailure(reply->errorString());
    return {.status = status,
            .body = std::move(arrival.body),
            .date = reply->rawHeader("Date"),
            .expires = reply->rawHeader("Expires"),
            .cacheControl = reply->rawHeader("Cache-Control"),
            .lastModified = reply->rawHeader("Last-Modified"),
            .retryAfter = reply->rawHeader("Retry-After")};
}

}  // namespace zephyrix
