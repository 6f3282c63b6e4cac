#include "ReadJson.h"

#include <cmath>

#include <QDateTime>
#include <QJsonDocument>

namespace zephyrix {

QJsonObject jsonObject(const QByteArray& text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        throw UnreadableAnswer(QStringLiteral("it is no JSON: %1").arg(error.errorString()));
    if (!document.isObject())
        throw UnreadableAnswer(QStringLiteral("it is no JSON object"));
    return document.object();
}

std::optional<int> wholeNumber(const QJsonValue& value, int least, int most) {
    const double number = value.toDouble();
    if (!value.isDouble() || !(number >= least && number <= most) || number != std::floor(number))
        return std::nullopt;
    return static_cast<int>(number);
}

std::optional<Instant> unixTime(const QJsonValue& value) {
    constexpr double year2200 = 7258118400.0;
    const double seconds = value.toDouble();
    if (!value.isDouble() || !(seconds >= 0.0 && seconds < year2200))
        return std::nullopt;
    return Instant::fromSecondsSince1970(seconds);
}

std::optional<Instant> isoTime(const QJsonValue& value) {
    const QString text = value.toString();
    // "2026-06-01T12:00Z" at least; longer than any time with offset and fraction is no time.
    if (text.size() < 17 || text.size() > 40)
        return std::nullopt;
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!time.isValid() || time.timeSpec() == Qt::LocalTime)
        return std::nullopt;
    return unixTime(Instant::fromDateTime(time).secondsSince1970());
}

bool Measurements::isIn(const UnitFacts& unit, const char* key) const {
    const QJsonValue told = units_.value(QLatin1String(key));
    if (!told.isString())
        return true;
    const std::string text = told.toString().toStdString();
    return std::find(unit.names.begin(), unit.names.end(), text) != unit.names.end();
}

}  // namespace zephyrix
