#pragma once

#include <QString>

#include "FeedChild.h"
#include "foundation/UserDefaults.h"
#include "widget/WeatherFeed.h"

namespace zephyrix {

/// Where the panel's feed lives, asked anew at each fetch: the address that was given on the
/// command line, else "feedServer" of the panel's settings, else the panel's own server, which is
/// started only then. The settings and the server must outlive the result.
[[nodiscard]] WeatherFeed::BaseAddress feedAddress(const QString& given,
                                                   const UserDefaults& panelSettings,
                                                   FeedChild& ownServer);

}  // namespace zephyrix
