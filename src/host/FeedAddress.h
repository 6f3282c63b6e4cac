#pragma once

#include <QString>

#include "FeedChild.h"
#include "foundation/UserDefaults.h"
#include "widget/WeatherFeed.h"

namespace zephyrix {

/// What the command line says about the feed.
struct FeedChoice {
    QString address;              // as completeFeedAddress() makes it; empty when not given
    bool allowPlainHttp = false;  // from other machines too
};

/// The address that a person means: ended by "/", and https where no scheme is written.
/// "example.org:8443/weather" is "https://example.org:8443/weather/".
[[nodiscard]] QString completeFeedAddress(const QString& written);

/// Where the panel's feed lives, asked anew at each fetch: the address that was given on the
/// command line, else "feedServer" of the panel's settings, else the panel's own server, which is
/// started only then. The settings and the server must outlive the result.
///
/// Plain http comes from this machine only, unless the command line or "allowPlainHttp" of the
/// settings says otherwise: else there is no address, after one line in the log.
[[nodiscard]] WeatherFeed::BaseAddress feedAddress(const FeedChoice& given,
                                                   const UserDefaults& panelSettings,
                                                   FeedChild& ownServer);

}  // namespace zephyrix
