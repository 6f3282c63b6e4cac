#include "FeedAddress.h"

#include <QRegularExpression>
#include <QUrl>

#include "foundation/Log.h"
#include "transport/AddressRules.h"

namespace zephyrix {

namespace {

QString allowedAddress(const QString& address, bool allowPlainHttp) {
    const QUrl url(address, QUrl::StrictMode);
    const bool isPlain = url.scheme() == QLatin1String("http");
    if (!isPlain || allowPlainHttp || isThisMachine(url))
        return address;
    logLine(
        QStringLiteral("the feed %1 is not asked: what plain http brings, anyone on the way can "
                       "read and change; give an https address, or allow it by "
                       "--allow-plain-http or the setting \"allowPlainHttp\"")
            .arg(url.toDisplayString()));
    return {};
}

}  // namespace

QString completeFeedAddress(const QString& written) {
    // A host with or without a port; the host is a name, or an address in brackets.
    static const QRegularExpression withoutScheme(
        QStringLiteral(R"(^([^/:?#@\[\]]+|\[[0-9A-Fa-f:.]+\])(:[0-9]+)?(/.*)?$)"));
    QString address = written.trimmed();
    if (withoutScheme.match(address).hasMatch())
        address.prepend(QLatin1String("https://"));
    return address.endsWith(QLatin1Char('/')) ? address : address + QLatin1Char('/');
}

WeatherFeed::BaseAddress feedAddress(const FeedChoice& given, const UserDefaults& panelSettings,
                                     FeedChild& ownServer) {
    return [given, &panelSettings, &ownServer](const FeedChild::Then& then) {
        const QString stored =
            panelSettings.object(QStringLiteral("feedServer")).toString().trimmed();
        if (given.address.isEmpty() && stored.isEmpty())
            return ownServer.address(then);
        const bool allowed =
            given.allowPlainHttp || panelSettings.boolean(QStringLiteral("allowPlainHttp"));
        then(allowedAddress(given.address.isEmpty() ? completeFeedAddress(stored) : given.address,
                            allowed));
    };
}

}  // namespace zephyrix
