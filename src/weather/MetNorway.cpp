#include "MetNorway.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDateTime>

#include "MetSymbolCode.h"
#include "MetTimeSeries.h"

namespace zephyrix {

namespace {

// For everything that one program's users ask together.
constexpr std::array limits = {RequestLimit{20, 1.0}};

constexpr double hour = 3600.0;
constexpr double longestStep = 6.0 * hour;

/// The step that holds now: the last one that has begun, or the first, if it is about to begin.
std::size_t stepAt(const std::vector<MetStep>& steps, Instant now) {
    const auto next =
        std::upper_bound(steps.begin(), steps.end(), now,
                         [](Instant time, const MetStep& step) { return time < step.time; });
    const auto step = next == steps.begin() ? next : next - 1;
    if (step == steps.end() || std::fabs(now.secondsSince(step->time)) > longestStep)
        throw UnreadableAnswer(QStringLiteral("it has no weather of now"));
    return static_cast<std::size_t>(step - steps.begin());
}

Observation observationAt(const MetStep& step, const Place& place) {
    Observation observation = step.instant;
    observation.time = step.time;
    observation.precipitationTime = PrecipitationTime::After;
    if (const MetPeriod* const period = step.shortestPeriod()) {
        observation.precipitation = period->precipitation;
        observation.precipitationPeriod = period->length;
        if (period->symbol) {
            observation.presentWeather = period->symbol->presentWeather;
            if (!observation.cloudCover)
                observation.cloudCover = period->symbol->cloudCover;
        }
    }
    return completed(observation, place);
}

/// What the steps say about one day.
struct DayGathering {
    std::vector<Celsius> temperatures;
    std::vector<const MetPeriod*> periods;  // with a symbol
};

/// What a day is remembered for: its heaviest precipitation if there was any worth the name, else
/// the middle of its skies.
const MetPeriod& tellingPeriod(std::vector<const MetPeriod*> periods) {
    const auto rate = [](const MetPeriod* period) {
        return period->precipitation.value_or(Millimetres(0.0)).value() / period->length.value();
    };
    double sum = 0.0;
    for (const MetPeriod* period : periods)
        sum += period->precipitation.value_or(Millimetres(0.0)).value();
    if (sum >= 0.5)
        return **std::max_element(
            periods.begin(), periods.end(),
            [&](const MetPeriod* a, const MetPeriod* b) { return rate(a) < rate(b); });
    const auto middle = periods.begin() + static_cast<std::ptrdiff_t>(periods.size() / 2);
    std::nth_element(periods.begin(), middle, periods.end(),
                     [](const MetPeriod* a, const MetPeriod* b) {
                         return a->symbol->cloudCover < b->symbol->cloudCover;
                     });
    return **middle;
}

DayGathering gather(const std::vector<MetStep>& steps, std::size_t from, const Place& place,
                    QDate date) {
    DayGathering day;
    for (std::size_t i = from; i < steps.size(); ++i) {
        const MetStep& step = steps[i];
        if (step.instant.temperature && dateAt(place, step.time) == date)
            day.temperatures.push_back(*step.instant.temperature);
        const MetPeriod* const period = step.shortestPeriod();
        if (period == nullptr)
            continue;
        // A period of six hours may reach into the next day: it is of the one that has its middle.
        if (dateAt(place, step.time.addingSeconds(period->length.value() * hour / 2.0)) != date)
            continue;
        for (const auto& extreme : {period->highest, period->lowest})
            if (extreme)
                day.temperatures.push_back(*extreme);
        if (period->symbol)
            day.periods.push_back(period);
    }
    return day;
}

std::vector<ForecastDay> daysFrom(const std::vector<MetStep>& steps, std::size_t from,
                                  const Place& place, Instant now) {
    const QDate today = dateAt(place, now);
    std::vector<ForecastDay> days;
    for (int i = 0; i < shownDays; ++i) {
        const QDate date = today.addDays(i);
        // The series ends within a day: its last day counts only with its afternoon.
        const Instant evening = Instant::fromDateTime(date.addDays(1).startOfDay(place.zone))
                                    .addingSeconds(-longestStep);
        if (i > 0 && steps.back().time < evening)
            break;
        const DayGathering gathered = gather(steps, from, place, date);
        if (gathered.temperatures.empty())
            continue;
        const auto [lowest, highest] =
            std::minmax_element(gathered.temperatures.begin(), gathered.temperatures.end());
        ForecastDay day{.date = date, .highest = *highest, .lowest = *lowest};
        if (!gathered.periods.empty()) {
            const MetSymbol symbol = *tellingPeriod(gathered.periods).symbol;
            day.symbol = symbolOfDay(symbol.presentWeather, symbol.cloudCover, place, date);
        }
        days.push_back(day);
    }
    return days;
}

}  // namespace

const ServiceTerms& MetNorway::terms() const {
    static constexpr ServiceTerms terms{
        .id = "met-norway",
        .name = "MET Norway",
        .licence = "Weather data from MET Norway (NLOD / CC BY 4.0)",
        .url = "https://www.met.no/",
        .address = "https://api.met.no/",
        .limits = limits,
        .holdsFor = 2 * 86400.0,
        .wantsContact = true};
    return terms;
}

bool MetNorway::isAtHome(const Place& place) const {
    // Norway, Sweden, Finland, Denmark and the seas around them with Svalbard.
    return place.latitude >= 54.5 && place.latitude <= 81.0 && place.longitude >= 0.0 &&
           place.longitude <= 32.0;
}

QString MetNorway::requestFor(const Place& place) const {
    const QString where = QStringLiteral("weatherapi/locationforecast/2.0/complete?lat=%1&lon=%2")
                              .arg(coordinateText(place.latitude), coordinateText(place.longitude));
    return place.elevation
               ? where + QStringLiteral("&altitude=%1").arg(std::lround(place.elevation->value()))
               : where;
}

Weather MetNorway::read(const QByteArray& answer, const Place& place, Instant now) const {
    const std::vector<MetStep> steps = metSteps(jsonObject(answer));
    const std::size_t current = stepAt(steps, now);
    Weather weather{.source = QString::fromUtf8(terms().name),
                    .observation = observationAt(steps[current], place)};
    if (auto days = daysFrom(steps, current, place, now); !days.empty())
        weather.days = std::move(days);
    if (current + 1 < steps.size())
        weather.validUntil = steps[current + 1].time;
    return weather;
}

}  // namespace zephyrix
