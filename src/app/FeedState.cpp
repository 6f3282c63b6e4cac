#include "FeedState.h"

#include <QDateTime>

#include "foundation/Localized.h"

namespace zephyrix {

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr qint64 secondsPerHour = 3600;
constexpr qint64 secondsPerDay = 86400;

/// The panel fetches again when a document is ten minutes old, and then at least every ten: one
/// that is older than both has waited for a feed that did not answer, or for a panel to be shown.
constexpr qint64 oldFrom = 20 * secondsPerMinute;

QString ageText(qint64 seconds) {
    if (seconds < 2 * secondsPerMinute)
        return localized(u"just now");
    if (seconds < 2 * secondsPerHour)
        return localized(u"%1 min ago").arg(seconds / secondsPerMinute);
    if (seconds < 2 * secondsPerDay)
        return localized(u"%1 h ago").arg(seconds / secondsPerHour);
    return localized(u"%1 days ago").arg(seconds / secondsPerDay);
}

QString stateText(const QVariantMap& document, const std::optional<Number>& uid, Instant now) {
    const QDateTime fetched = document.value(QStringLiteral("insertDtg")).toDateTime();
    const auto ofPlace = Number::fromVariant(document.value(QStringLiteral("uid")));
    if (!fetched.isValid() || !ofPlace || ofPlace != uid)
        return localized(u"No weather of this place yet: open the panel.");
    const auto age = static_cast<qint64>(now.secondsSince(Instant::fromDateTime(fetched)));
    const QString updated = localized(u"Updated %1.").arg(ageText(age));
    return age < oldFrom
               ? updated
               : updated + QLatin1Char(' ') +
                     localized(u"The panel was closed since, or the feed could not be reached.");
}

}  // namespace

FeedState feedState(const std::optional<QVariantMap>& document, const std::optional<Number>& uid,
                    Instant now) {
    const QVariantMap known = document.value_or(QVariantMap());
    const QVariantMap obs = known.value(QStringLiteral("obs")).toMap();
    const QVariant whole = known.value(QStringLiteral("source"));  // a feed may name it there
    const QVariantMap parts = whole.toMap();
    FeedState state;
    state.source =
        parts.isEmpty() ? whole.toString() : parts.value(QStringLiteral("name")).toString();
    state.licence = parts.value(QStringLiteral("licence")).toString();
    if (state.source.isEmpty()) {
        state.source = obs.value(QStringLiteral("source")).toString();
        state.licence = obs.value(QStringLiteral("licence")).toString();
    }
    if (state.source.compare(QLatin1String("demonstration"), Qt::CaseInsensitive) == 0)
        state.source = localized(u"Demonstration weather");
    state.state = stateText(known, uid, now);
    return state;
}

}  // namespace zephyrix
