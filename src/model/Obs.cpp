#include "Obs.h"

#include <array>

#include <QDateTime>
#include <QTimeZone>

#include "foundation/DateFormatter.h"
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
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    DateFormatter formatter;
    formatter.setDateFormat(QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZZZZZ"));
    formatter.setLocale("en_US_POSIX");
    formatter.setTimeZone(QTimeZone(0));
    return formatter.dateFromString(value.toString());
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
