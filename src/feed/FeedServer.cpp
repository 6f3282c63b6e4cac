#include "FeedServer.h"

#include <charconv>
#include <string>

#include <QJsonDocument>
#include <QJsonObject>

#include "CacheHeaders.h"
#include "KeepingServer.h"
#include "foundation/Clock.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

using httplib::Request;
using httplib::Response;

constexpr const char* feedPath = "/zephyrix/WeatherFeed.php";
constexpr const char* jsonType = "application/json";

void refuse(Response& response, int status, const char* reason) {
    const QJsonObject body{{QStringLiteral("error"), QString::fromUtf8(reason)}};
    response.status = status;
    response.set_header("Cache-Control", "no-store");
    response.set_content(QJsonDocument(body).toJson(QJsonDocument::Compact).toStdString(),
                         jsonType);
}

/// A place id: decimal digits alone, 1 or more, within 64 bits.
std::optional<std::int64_t> placeId(const std::string& text) {
    std::int64_t id = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, id);
    if (error != std::errc() || stop != end || id < 1)
        return std::nullopt;
    return id;
}

void logRequest(const Request& request, const Response& response) {
    const std::size_t bytes = request.method == "HEAD" ? 0 : response.body.size();
    // All at once: a path may well hold "%1".
    logLine(QStringLiteral("%1 %2 %3 %4 %5")
                .arg(Clock::now().toDateTime().toString(Qt::ISODate),
                     QString::fromStdString(request.method), QString::fromStdString(request.target),
                     QString::number(response.status), QString::number(bytes)));
}

}  // namespace

class FeedServer::Private {
  public:
    Private(const DocumentKeeper& documents, const PlaceDirectory& places)
        : documents_(documents), places_(places) {
        // Before the library reads a body, and instead of its routing, whose patterns recurse once
        // a character of the path.
        server.set_pre_routing_handler([this](const Request& request, Response& response) {
            answer(request, response);
            return httplib::Server::HandlerResponse::Handled;
        });
        server.set_error_handler([](const Request&, Response& response) {
            if (response.body.empty())
                refuse(response, response.status, "the request is not understood");
        });
        server.set_logger(logRequest);
    }

    KeepingServer server;

  private:
    void answer(const Request& request, Response& response) const {
        if (request.method != "GET" && request.method != "HEAD") {
            response.set_header("Allow", "GET, HEAD");
            return refuse(response, 405, "only GET is answered");
        }
        if (request.path != feedPath)
            return refuse(response, 404, "there is nothing here but /zephyrix/WeatherFeed.php");
        const auto id = placeId(request.get_param_value("lid"));
        if (!id)
            return refuse(response, 400, "lid must be the id of a place, a whole number from 1");
        const auto place = places_.placeOf(*id);
        if (!place)
            return refuse(response, 404, "no place is known by this id");
        const Instant now = Clock::now();
        const auto document = documents_.documentFor(*place, now);
        if (!document)
            return refuse(response, 503, "the weather of this place is not known at present");
        addCacheHeaders(response, *document, now);
        response.set_header("X-Zephyrix-Weather", document->source.toStdString());
        if (isUnchangedFor(request, *document))
            response.status = 304;
        else
            response.set_content(document->body.toStdString(), jsonType);
    }

    const DocumentKeeper& documents_;
    const PlaceDirectory& places_;
};

FeedServer::FeedServer(const DocumentKeeper& documents, const PlaceDirectory& places)
    : d_(std::make_unique<Private>(documents, places)) {}

FeedServer::~FeedServer() = default;

std::optional<int> FeedServer::listenOn(int port) {
    constexpr const char* loopback = "127.0.0.1";
    const int chosen = port == 0 ? d_->server.bind_to_any_port(loopback)
                       : d_->server.bind_to_port(loopback, port) ? port
                                                                 : -1;
    if (chosen <= 0)
        return std::nullopt;
    d_->server.widenQueue();
    return chosen;
}

void FeedServer::serve() {
    d_->server.listen_after_bind();
}

void FeedServer::stop() {
    d_->server.stop();
}

}  // namespace zephyrix
