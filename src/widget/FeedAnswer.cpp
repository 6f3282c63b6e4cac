#include "FeedAnswer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>

#include "foundation/Clock.h"

namespace zephyrix {

namespace {

/// The value under "first" > "second"; nothing where the way there is no dictionary.
QJsonValue valueAt(const QJsonObject& top, QLatin1String first, QLatin1String second) {
    return top.value(first).toObject().value(second);
}

WeatherData documentFrom(const QJsonObject& top, const Number& locationID) {
    WeatherData document;
    const QJsonValue lastObs = valueAt(top, QLatin1String("obs"), QLatin1String("lastObs"));
    if (lastObs.isObject()) {
        document.obs = Obs(lastObs.toObject().toVariantMap());
        document.uid = locationID;
        document.insertDtg = Clock::now();
    }
    const QJsonValue days = valueAt(top, QLatin1String("forecast"), QLatin1String("days"));
    document.forecast = listOfDictionaries(days.toObject().value(QLatin1String("day")).toVariant());
    return document;
}

}  // namespace

FeedAnswer FeedAnswer::fromBody(const QByteArray& body, const Number& locationID) {
    if (body.isEmpty())
        return {};
    QJsonParseError failure;
    const QJsonDocument top = QJsonDocument::fromJson(body, &failure);
    if (failure.error != QJsonParseError::NoError)
        return {{}, FeedError{FeedError::parserDomain, failure.error, failure.errorString()}};
    return {documentFrom(top.object(), locationID), std::nullopt};
}

}  // namespace zephyrix
