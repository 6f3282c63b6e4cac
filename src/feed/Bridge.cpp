#include "Bridge.h"

#include <mutex>
#include <random>
#include <vector>

#include "FeedOptions.h"
#include "foundation/Clock.h"
#include "foundation/Log.h"
#include "weather/AutomaticWeather.h"
#include "weather/NetworkHttpClient.h"
#include "weather/WeatherServices.h"

namespace zephyrix {

namespace {

const QString automatic = QStringLiteral("auto");
constexpr double longestKeeping = 3.0 * 86400.0;  // seconds, of answers on disk

Chance realChance() {
    struct Generator {
        std::mutex mutex;
        std::mt19937 engine{std::random_device{}()};
    };
    return [generator = std::make_shared<Generator>()] {
        const std::lock_guard lock(generator->mutex);
        return std::uniform_real_distribution<double>(0.0, 1.0)(generator->engine);
    };
}

QByteArray userAgent(const QString& contact, const QByteArray& version) {
    const QByteArray program = "zephyrix-feedd/" + version;
    return contact.isEmpty() ? program : program + " (" + contact.toLatin1() + ')';
}

}  // namespace

class Bridge::Private {
  public:
    Private(const BridgeSettings& settings, const QByteArray& version) {
        for (const WeatherService* const service : weatherServices()) {
            const QString id = QLatin1String(service->terms().id);
            if (settings.source != automatic && settings.source != id)
                continue;
            if (!service->terms().wantsContact || !settings.contact.isEmpty())
                addService(*service, addressOf(*service, settings),
                           userAgent(settings.contact, version));
            else if (settings.source == automatic)
                logLine(QStringLiteral("%1 is left out: no contact is given").arg(id));
            else
                throw BadOption(QStringLiteral("%1 wants to know who asks: give --contact ADDRESS "
                                               "(e-mail or web) or set \"weatherContact\"")
                                    .arg(id));
        }
        if (settings.source == automatic)
            automatic_ = std::make_unique<AutomaticWeather>(all());
        store_.removeOlderThan(Clock::now().addingSeconds(-longestKeeping));
    }

    [[nodiscard]] const WeatherSource& source() const {
        if (automatic_)
            return *automatic_;
        return *services_.front();
    }

  private:
    static QUrl addressOf(const WeatherService& service, const BridgeSettings& settings) {
        const auto other = settings.addresses.find(QLatin1String(service.terms().id));
        return other == settings.addresses.end() ? QUrl(QLatin1String(service.terms().address))
                                                 : other->second;
    }

    void addService(const WeatherService& service, const QUrl& address,
                    const QByteArray& userAgent) {
        services_.push_back(std::make_unique<ServiceWeather>(
            service, address, ServiceWeather::Surroundings{http_, store_, chance_, userAgent}));
    }

    [[nodiscard]] std::vector<const ServiceWeather*> all() const {
        std::vector<const ServiceWeather*> services;
        for (const auto& service : services_)
            services.push_back(service.get());
        return services;
    }

    NetworkHttpClient http_;
    AnswerStore store_{AnswerStore::defaultFolder()};
    Chance chance_ = realChance();
    std::vector<std::unique_ptr<ServiceWeather>> services_;  // those that are asked
    std::unique_ptr<AutomaticWeather> automatic_;            // only for "auto"
};

Bridge::Bridge(const BridgeSettings& settings, const QByteArray& programVersion) {
    const QStringList names = weatherSourceNames();
    if (!names.contains(settings.source))
        throw BadOption(QStringLiteral("source: there is no \"%1\"; there are: %2")
                            .arg(settings.source, names.join(QLatin1String(", "))));
    if (!settings.contact.isEmpty() && !isContact(settings.contact))
        throw BadOption(
            QStringLiteral("contact: \"%1\" is no e-mail or web address").arg(settings.contact));
    d_ = std::make_unique<Private>(settings, programVersion);
}

Bridge::~Bridge() = default;

const WeatherSource& Bridge::source() const {
    return d_->source();
}

}  // namespace zephyrix
