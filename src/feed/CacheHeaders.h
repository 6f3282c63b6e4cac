#pragma once

#include <httplib.h>

#include "DocumentKeeper.h"

namespace zephyrix {

/// Tells caches on the way how long the document holds, ten minutes at most, and by what to
/// recognise it: Cache-Control, ETag, Last-Modified, Date, Vary.
void addCacheHeaders(httplib::Response& response, const KeptDocument& document, Instant now);

/// Whether the request is conditional and the asker has this document already: by If-None-Match,
/// else by If-Modified-Since.
[[nodiscard]] bool isUnchangedFor(const httplib::Request& request, const KeptDocument& document);

}  // namespace zephyrix
