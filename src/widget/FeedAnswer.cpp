#include "FeedAnswer.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QVariantMap>

#include "foundation/Clock.h"

namespace zephyrix {

namespace {

/// The value under "first" > "second"; nothing where the way there is no dictionary.
QVariant valueAt(const QVariantMap& top, const QString& first, const QString& second) {
    const auto inner = dictionaryFrom(top.value(first));
    return inner ? inner->value(second) : QVariant();
}

WeatherData documentFrom(const QVariantMap& top, const Number& locationID) {
    WeatherData document;
    const QVariant lastObs = valueAt(top, QStringLiteral("obs"), QStringLiteral("lastObs"));
    if (const auto observation = dictionaryFrom(lastObs)) {
        document.obs = Obs(*observation);
        document.uid = locationID;
        document.insertDtg = Clock::now();
    }
    const QVariant days = valueAt(top, QStringLiteral("forecast"), QStringLiteral("days"));
    if (const auto inner = dictionaryFrom(days))
        document.forecast = listOfDictionaries(inner->value(QStringLiteral("day")));
    return document;
}

}  // namespace

FeedAnswer FeedAnswer::fromBody(const QByteArray& body, const Number& locationID) {
    if (body.isEmpty())
        return {};
    QJsonParseError failure;
    const QVariant top = QJsonDocument::fromJson(body, &failure).toVariant();
    if (failure.error != QJsonParseError::NoError)
        return {{}, FeedError{FeedError::parserDomain, failure.error, failure.errorString()}};
    const auto dictionary = dictionaryFrom(top);
    return {dictionary ? documentFrom(*dictionary, locationID) : WeatherData(), std::nullopt};
}

}  // namespace zephyrix
