#include "Obs.h"

#include <array>

#include <QDate>
#include <QDateTime>
#include <QRegularExpression>
#include <QTime>

#include "foundation/Description.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

struct NumberField {
    const char* key;
    std::optional<Number> Obs::*field;
};

constexpr std::array<NumberField, 11> numberFields{{
    {"symbol", &Obs::symbol},
    {"tt", &Obs::tt},
    {"td", &Obs::td},
    {"dd", &Obs::dd},
    {"ff", &Obs::ff},
    {"ffg", &Obs::ffg},
    {"rrr", &Obs::rrr},
    {"rrrh", &Obs::rrrh},
    {"n", &Obs::n},
    {"ww", &Obs::ww},
    {"ppp", &Obs::ppp},
}};

void readNumber(Obs& obs, const QString& key, const QVariant& value) {
    for (const NumberField& number : numberFields)
        if (key == QLatin1String(number.key)) {
            obs.*number.field = Obs::numberOrNil(value);
            return;
        }
}

/// Seconds east of Greenwich for "Z", "+02:00" or "-03:30:15".
int offsetFromText(const QString& text) {
    if (text == QLatin1String("Z"))
        return 0;
    const int hours = QStringView(text).mid(1, 2).toInt();
    const int minutes = QStringView(text).mid(4, 2).toInt();
    const int seconds = QStringView(text).mid(7, 2).toInt();
    const int offset = (hours * 60 + minutes) * 60 + seconds;
    return text.startsWith(QLatin1Char('-')) ? -offset : offset;
}

}  // namespace

Obs::Obs(const QVariantMap& dictionary) : dict(dictionary) {
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        if (entry.key() == QLatin1String("datetime"))
            date = dateFromISO8601DateTimeString(entry.value());
        else if (entry.key() == QLatin1String("date"))
            date = dateFromObject(entry.value());
        else
            readNumber(*this, entry.key(), entry.value());
    }
}

bool Obs::isValid() const noexcept {
    return date && symbol;
}

QVariantMap Obs::asDict() const {
    return dict.value_or(QVariantMap());
}

std::optional<Number> Obs::numberOrNil(const QVariant& value) {
    const auto number = Number::fromVariant(value);
    if (!number)
        logLine(QStringLiteral("object %1 is not a number!").arg(description(value)));
    return number;
}

std::optional<Instant> Obs::dateFromISO8601DateTimeString(const QVariant& value) {
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("([0-9]{4}-[0-9]{2}-[0-9]{2})T([0-9]{2}:[0-9]{2}:[0-9]{2})"
                       "(Z|[+-](?:[01][0-9]|2[0-3]):[0-5][0-9](?::[0-5][0-9])?)")));
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    const QRegularExpressionMatch match = form.match(value.toString());
    if (!match.hasMatch())
        return std::nullopt;
    const QDate day = QDate::fromString(match.captured(1), Qt::ISODate);
    const QTime time = QTime::fromString(match.captured(2), QStringLiteral("HH:mm:ss"));
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    const QDateTime asIfUtc(day, time, Qt::UTC);
    return Instant::fromDateTime(asIfUtc).addingSeconds(-offsetFromText(match.captured(3)));
}

std::optional<Instant> Obs::dateFromObject(const QVariant& value) {
    if (const auto seconds = Number::fromVariant(value))
        return Instant::fromSecondsSince1970(seconds->doubleValue());
    if (value.typeId() == qMetaTypeId<Instant>())
        return value.value<Instant>();
    if (value.typeId() == QMetaType::QDateTime && value.toDateTime().isValid())
        return Instant::fromDateTime(value.toDateTime());
    return std::nullopt;
}

}  // namespace zephyrix
