#include "CacheHeaders.h"

#include <algorithm>
#include <cmath>

#include "weather/HttpDate.h"

namespace zephyrix {

namespace {

// A place may be given other coordinates, and the panel asks every ten minutes.
constexpr double longestAge = 600.0;

/// Compared weakly, as a GET asks for it: "W/" does not count.
bool namesTag(const QByteArray& ifNoneMatch, const QByteArray& tag) {
    const QByteArray bare = tag.mid(2);
    const QByteArrayList parts = ifNoneMatch.split(',');
    return std::any_of(parts.begin(), parts.end(), [&](const QByteArray& part) {
        const QByteArray wanted = part.trimmed();
        return wanted == "*" || (wanted.startsWith("W/") ? wanted.mid(2) : wanted) == bare;
    });
}

}  // namespace

void addCacheHeaders(httplib::Response& response, const KeptDocument& document, Instant now) {
    const double age =
        std::clamp(std::floor(document.validUntil.secondsSince(now)), 0.0, longestAge);
    response.set_header("Cache-Control",
                        "public, max-age=" + std::to_string(static_cast<int>(age)));
    response.set_header("ETag", document.tag.toStdString());
    response.set_header("Last-Modified", httpDate(document.since).toStdString());
    response.set_header("Date", httpDate(now).toStdString());
    response.set_header("Vary", "Accept-Encoding");
}

bool isUnchangedFor(const httplib::Request& request, const KeptDocument& document) {
    if (request.has_header("If-None-Match"))
        return namesTag(QByteArray::fromStdString(request.get_header_value("If-None-Match")),
                        document.tag);
    const auto known = instantFromHttpDate(
        QByteArray::fromStdString(request.get_header_value("If-Modified-Since")));
    return known && std::floor(document.since.secondsSince1970()) <= known->secondsSince1970();
}

}  // namespace zephyrix
