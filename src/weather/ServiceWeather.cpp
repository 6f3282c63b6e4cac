#include "ServiceWeather.h"

#include <algorithm>
#include <utility>

#include "HttpDate.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

constexpr double leastKeeping = 600.0;       // seconds
constexpr double mostKeeping = 86400.0;      // whatever the service says
constexpr double mostOffset = 120.0;         // by chance, so that nobody asks in step with others
constexpr double pauseWhenRefused = 3600.0;  // at least
constexpr double mostPause = 2.0 * 86400.0;
constexpr double pauseWithoutWeather = 6.0 * 3600.0;
constexpr double nextLook = 10.0;         // until an answer that is held over is looked after again
constexpr double clockTolerance = 300.0;  // an answer "from the future" is of a clock set back
constexpr std::size_t mostTroubledPlaces = 10000;

/// The seconds of "max-age" in a Cache-Control header; 0 when it has none.
double maxAge(const QByteArray& cacheControl) {
    for (const QByteArray& part : cacheControl.toLower().split(','))
        if (const QByteArray directive = part.trimmed(); directive.startsWith("max-age="))
            return directive.mid(8).toUInt();
    return 0.0;
}

/// Seconds or a date.
double retryAfter(const HttpAnswer& answer, Instant now) {
    if (const auto date = instantFromHttpDate(answer.retryAfter))
        return date->secondsSince(now);
    return answer.retryAfter.toUInt();
}

}  // namespace

ServiceWeather::ServiceWeather(const WeatherService& service, QUrl address,
                               Surroundings surroundings)
    : service_(service),
      address_(std::move(address)),
      surroundings_(std::move(surroundings)),
      budget_(service.terms().limits) {
    // A pause that the service asked for outlives the program.
    if (const auto pause =
            surroundings_.store.read(QLatin1String(service.terms().id) + QStringLiteral(".pause")))
        patience_.atLeastUntil(
            std::min(pause->freshUntil, pause->fetched.addingSeconds(mostPause)));
}

std::optional<Weather> ServiceWeather::weatherAt(const Place& place, Instant now) const {
    if (!service_.covers(place))
        return std::nullopt;
    const QString name = QStringLiteral("%1_%2_%3")
                             .arg(QLatin1String(service_.terms().id),
                                  coordinateText(place.latitude), coordinateText(place.longitude));
    auto reading = remembered(name, place, now);
    bool isFresh = reading && now < reading->answer.freshUntil &&
                   now.secondsSince(reading->answer.fetched) > -clockTolerance;
    if (!isFresh && takesTurn(name, now)) {
        if (auto answered = ask(name, place, reading, now)) {
            reading = std::move(answered);
            isFresh = true;
        }
    }
    if (!reading)
        return std::nullopt;
    return weatherIn(name, std::move(*reading), isFresh, now);
}

std::optional<ServiceWeather::Reading> ServiceWeather::remembered(const QString& name,
                                                                  const Place& place,
                                                                  Instant now) const {
    auto answer = surroundings_.store.read(name);
    if (!answer || now.secondsSince(answer->fetched) > service_.terms().holdsFor)
        return std::nullopt;
    try {
        Weather weather = service_.read(answer->body, place, now);
        return Reading{std::move(*answer), std::move(weather)};
    } catch (const UnreadableAnswer&) {
        return std::nullopt;
    }
}

/// Whether the service may be asked now; then the request counts as sent.
bool ServiceWeather::takesTurn(const QString& name, Instant now) const {
    const std::lock_guard lock(mutex_);
    const auto withPlace = withPlaces_.find(name);
    const bool isTroubled = withPlace != withPlaces_.end() && !withPlace->second.isOver(now);
    if (isTroubled || !patience_.isOver(now) || !budget_.allows(now))
        return false;
    budget_.count(now);
    return true;
}

HttpRequest ServiceWeather::requestFor(const Place& place,
                                       const std::optional<Reading>& kept) const {
    return {.address = QUrl(address_.toString() + service_.requestFor(place)),
            .userAgent = surroundings_.userAgent,
            .ifModifiedSince = kept ? kept->answer.lastModified : QByteArray()};
}

std::optional<ServiceWeather::Reading> ServiceWeather::ask(const QString& name, const Place& place,
                                                           const std::optional<Reading>& kept,
                                                           Instant now) const {
    try {
        const HttpAnswer answer = surroundings_.http.get(requestFor(place, kept));
        const int status = answer.status;
        const bool isWeather = status == 200 || status == 203 || (status == 304 && kept);
        if (!isWeather) {
            refused(name, answer, now);
            return std::nullopt;
        }
        Reading read = reading(answer, place, kept, now);
        surroundings_.store.write(name, read.answer);
        succeeded(name, status);
        return read;
    } catch (const HttpFailure& failure) {
        const std::lock_guard lock(mutex_);
        failed(patience_, now, QString::fromUtf8(failure.what()));
    } catch (const NothingHere& nothing) {
        const std::lock_guard lock(mutex_);
        leave(withPlace(name), now.addingSeconds(pauseWithoutWeather),
              QString::fromUtf8(nothing.what()));
    } catch (const UnreadableAnswer& unreadable) {
        const std::lock_guard lock(mutex_);
        failed(withPlace(name), now, QString::fromUtf8(unreadable.what()));
    }
    return std::nullopt;
}

ServiceWeather::Reading ServiceWeather::reading(const HttpAnswer& answer, const Place& place,
                                                const std::optional<Reading>& kept,
                                                Instant now) const {
    const bool isUnchanged = answer.status == 304;
    KeptAnswer keeping{.fetched = now,
                       .freshUntil = freshUntil(answer, now),
                       .lastModified = answer.lastModified,
                       .body = isUnchanged ? kept->answer.body : answer.body};
    if (isUnchanged && keeping.lastModified.isEmpty())
        keeping.lastModified = kept->answer.lastModified;
    Weather weather = service_.read(keeping.body, place, now);
    return {std::move(keeping), std::move(weather)};
}

Instant ServiceWeather::freshUntil(const HttpAnswer& answer, Instant now) const {
    double keeping = std::max(leastKeeping, maxAge(answer.cacheControl));
    // By the service's own clock where it tells the time: ours may be wrong.
    if (const auto expires = instantFromHttpDate(answer.expires))
        keeping = std::max(keeping,
                           expires->secondsSince(instantFromHttpDate(answer.date).value_or(now)));
    return now.addingSeconds(std::min(keeping, mostKeeping) + mostOffset * surroundings_.chance());
}

void ServiceWeather::succeeded(const QString& name, int status) const {
    const std::lock_guard lock(mutex_);
    patience_.succeeded();
    withPlaces_.erase(name);
    if (status == 203 && !std::exchange(isDeprecationTold_, true))
        tell(QStringLiteral("answers 203: what is asked of it will soon be gone"));
}

void ServiceWeather::refused(const QString& name, const HttpAnswer& answer, Instant now) const {
    const QString said = service_.reasonIn(answer.body);
    const QString why = QStringLiteral("it answers %1").arg(answer.status) +
                        (said.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(said));
    const std::lock_guard lock(mutex_);
    if (answer.status == 403 || answer.status == 429) {
        const double pause = std::clamp(retryAfter(answer, now), pauseWhenRefused, mostPause);
        const Instant until = now.addingSeconds(pause + mostOffset * surroundings_.chance());
        leave(patience_, until, why);
        surroundings_.store.write(QLatin1String(service_.terms().id) + QStringLiteral(".pause"),
                                  {.fetched = now, .freshUntil = until});
    } else if (answer.status == 404) {
        leave(withPlace(name), now.addingSeconds(pauseWithoutWeather), why);
    } else if (answer.status >= 400 && answer.status < 500) {
        failed(withPlace(name), now, why);
    } else {
        failed(patience_, now, why);
    }
}

Patience& ServiceWeather::withPlace(const QString& name) const {
    if (withPlaces_.size() >= mostTroubledPlaces)
        withPlaces_.clear();
    return withPlaces_[name];
}

void ServiceWeather::leave(Patience& patience, Instant until, const QString& why) const {
    patience.atLeastUntil(until);
    tell(QStringLiteral("%1; not asked again before %2").arg(why, until.description()));
}

void ServiceWeather::failed(Patience& patience, Instant now, const QString& why) const {
    patience.failed(now, surroundings_.chance);
    tell(QStringLiteral("%1; not asked again before %2").arg(why, patience.until().description()));
}

void ServiceWeather::tell(const QString& what) const {
    logLine(QStringLiteral("%1: %2").arg(QLatin1String(service_.terms().id), what));
}

Weather ServiceWeather::weatherIn(const QString& name, Reading reading, bool isFresh,
                                  Instant now) const {
    const ServiceTerms& terms = service_.terms();
    Weather weather = std::move(reading.weather);
    weather.licence = QString::fromUtf8(terms.licence);
    weather.sourceUrl = QString::fromUtf8(terms.url);
    weather.fetched = reading.answer.fetched;
    weather.isHeldOver = !isFresh;
    Instant until = reading.answer.freshUntil;
    if (!isFresh) {
        const std::lock_guard lock(mutex_);
        const auto withPlace = withPlaces_.find(name);
        until = std::max(now.addingSeconds(nextLook), patience_.until());
        if (withPlace != withPlaces_.end())
            until = std::max(until, withPlace->second.until());
    }
    weather.validUntil = std::min(weather.validUntil.value_or(until), until);
    return weather;
}

}  // namespace zephyrix
