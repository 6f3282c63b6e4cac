#include "WeatherData.h"

#include <algorithm>

#include <QDateTime>

#include "foundation/FatalError.h"

namespace zephyrix {

namespace {

std::optional<Instant> dateIn(const QVariant& value) {
    // A number is no date here, unlike in an observation: the store keeps dates as dates.
    return Number::fromVariant(value) ? std::nullopt : Obs::dateFromObject(value);
}

}  // namespace

WeatherData::WeatherData(const QVariantMap& cached)
    : insertDtg(dateIn(cached.value(QStringLiteral("insertDtg")))),
      uid(Number::fromVariant(cached.value(QStringLiteral("uid")))) {
    const auto observation = dictionaryFrom(cached.value(QStringLiteral("obs")));
    if (!observation)
        fatalError(QStringLiteral("the cached weather document has no \"obs\" dictionary"));
    obs = Obs(*observation);
    forecast = listOfDictionaries(cached.value(QStringLiteral("forecast")));
}

bool WeatherData::isValid() const noexcept {
    return obs && obs->isValid();
}

QVariantMap WeatherData::asDict() const {
    QVariantMap dictionary;
    if (insertDtg)
        dictionary.insert(QStringLiteral("insertDtg"), insertDtg->toDateTime());
    if (uid)
        dictionary.insert(QStringLiteral("uid"), uid->toVariant());
    if (obs)
        dictionary.insert(QStringLiteral("obs"), obs->asDict());
    if (forecast)
        dictionary.insert(QStringLiteral("forecast"), *forecast);
    return dictionary;
}

std::optional<QVariantList> listOfDictionaries(const QVariant& value) {
    if (value.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    const QVariantList list = value.toList();
    const auto isDictionary = [](const QVariant& element) {
        return element.typeId() == QMetaType::QVariantMap;
    };
    if (!std::all_of(list.cbegin(), list.cend(), isDictionary))
        return std::nullopt;
    return list;
}

std::optional<QVariantMap> dictionaryFrom(const QVariant& value) {
    if (value.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return value.toMap();
}

}  // namespace zephyrix
