#include "FeedAddress.h"

namespace zephyrix {

namespace {

QString withSlash(const QString& address) {
    return address.endsWith(QLatin1Char('/')) ? address : address + QLatin1Char('/');
}

}  // namespace

WeatherFeed::BaseAddress feedAddress(const QString& given, const UserDefaults& panelSettings,
                                     FeedChild& ownServer) {
    return [given, &panelSettings, &ownServer](const FeedChild::Then& then) {
        const QString stored =
            panelSettings.object(QStringLiteral("feedServer")).toString().trimmed();
        if (!given.isEmpty())
            then(withSlash(given));
        else if (!stored.isEmpty())
            then(withSlash(stored));
        else
            ownServer.address(then);
    };
}

}  // namespace zephyrix
