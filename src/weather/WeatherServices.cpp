#include "WeatherServices.h"

#include <algorithm>
#include <array>

#include "BrightSky.h"
#include "MetNorway.h"
#include "OpenMeteo.h"

namespace zephyrix {

std::span<const WeatherService* const> weatherServices() {
    static const OpenMeteo openMeteo;
    static const MetNorway metNorway;
    static const BrightSky brightSky;
    static constexpr std::array<const WeatherService*, 3> all = {&openMeteo, &metNorway,
                                                                 &brightSky};
    return all;
}

const WeatherService* weatherServiceNamed(const QString& id) {
    const auto services = weatherServices();
    const auto found = std::find_if(
        services.begin(), services.end(),
        [&](const WeatherService* service) { return id == QLatin1String(service->terms().id); });
    return found == services.end() ? nullptr : *found;
}

QStringList weatherSourceNames() {
    QStringList names{QStringLiteral("auto")};
    for (const WeatherService* const service : weatherServices())
        names << QLatin1String(service->terms().id);
    return names << QStringLiteral("demo");
}

bool isContact(const QString& text) {
    constexpr qsizetype longest = 200;
    const auto isPlain = [](QChar c) { return c > u' ' && c < u'\x7f' && c != u'(' && c != u')'; };
    const bool isAddress = text.contains(QLatin1Char('@')) ||
                           text.startsWith(QLatin1String("https://")) ||
                           text.startsWith(QLatin1String("http://"));
    return isAddress && text.size() <= longest && std::all_of(text.begin(), text.end(), isPlain);
}

}  // namespace zephyrix
