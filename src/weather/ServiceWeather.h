#pragma once

#include <map>
#include <mutex>
#include <optional>

#include <QUrl>

#include "AnswerStore.h"
#include "HttpClient.h"
#include "Patience.h"
#include "RequestBudget.h"
#include "WeatherService.h"
#include "WeatherSource.h"

namespace zephyrix {

/// The weather of one public service, asked within its terms. An answer is kept on disk for ten
/// minutes or as long as the service says, whichever is longer, and up to two minutes more by
/// chance; after that the service is asked whether it has changed. While it cannot be asked, the
/// kept answer goes on as long as it still tells something of now (Weather::isHeldOver).
///
/// | the service answers                      | then                                              |
/// |------------------------------------------|---------------------------------------------------|
/// | 200; 203                                 | it is kept; 203 is told in the log: soon gone     |
/// | 304                                      | the kept answer holds on                          |
/// | 403, 429                                 | it is not asked for an hour, longer if it says so |
/// | 404, or NothingHere                      | it is not asked for that place for six hours      |
/// | another 4xx, or what cannot be read      | Patience with that place                          |
/// | another status, or nothing               | Patience with the service                         |
class ServiceWeather : public WeatherSource {
  public:
    /// Where and as whom it asks. All of them must outlive it.
    struct Surroundings {
        const HttpClient& http;
        const AnswerStore& store;
        Chance chance;
        QByteArray userAgent;
    };

    /// The service must outlive it. The address ends with "/" and stands for terms().address.
    ServiceWeather(const WeatherService& service, QUrl address, Surroundings surroundings);

    [[nodiscard]] const WeatherService& service() const noexcept { return service_; }

    [[nodiscard]] std::optional<Weather> weatherAt(const Place& place, Instant now) const override;

  private:
    /// An answer and what it says.
    struct Reading {
        KeptAnswer answer;
        Weather weather;
    };

    [[nodiscard]] std::optional<Reading> remembered(const QString& name, const Place& place,
                                                    Instant now) const;
    [[nodiscard]] bool takesTurn(const QString& name, Instant now) const;
    [[nodiscard]] std::optional<Reading> ask(const QString& name, const Place& place,
                                             const std::optional<Reading>& kept, Instant now) const;
    [[nodiscard]] HttpRequest requestFor(const Place& place,
                                         const std::optional<Reading>& kept) const;
    [[nodiscard]] Reading reading(const HttpAnswer& answer, const Place& place,
                                  const std::optional<Reading>& kept, Instant now) const;
    [[nodiscard]] Instant freshUntil(const HttpAnswer& answer, Instant now) const;
    void succeeded(const QString& name, int status) const;
    void refused(const QString& name, const HttpAnswer& answer, Instant now) const;
    [[nodiscard]] Patience& withPlace(const QString& name) const;
    void leave(Patience& patience, Instant until, const QString& why) const;
    void failed(Patience& patience, Instant now, const QString& why) const;
    void tell(const QString& what) const;
    [[nodiscard]] Weather weatherIn(const QString& name, Reading reading, bool isFresh,
                                    Instant now) const;

    const WeatherService& service_;
    QUrl address_;
    Surroundings surroundings_;

    mutable std::mutex mutex_;  // guards what follows
    mutable RequestBudget budget_;
    mutable Patience patience_;                       // with the service
    mutable std::map<QString, Patience> withPlaces_;  // those of which something went wrong
    mutable bool isDeprecationTold_ = false;
};

}  // namespace zephyrix
