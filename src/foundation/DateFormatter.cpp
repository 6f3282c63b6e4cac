#include "DateFormatter.h"

#include <cmath>

#include <unicode/simpletz.h>
#include <unicode/smpdtfmt.h>

#include "DatePattern.h"
#include "FatalError.h"
#include "UserLocale.h"

namespace zephyrix {

namespace {

icu::UnicodeString toIcu(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size())};
}

std::unique_ptr<icu::DateFormat> formatOf(const QString& pattern, const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(toIcu(pattern), locale, status);
    if (U_FAILURE(status) != 0)
        fatalError(QStringLiteral("no date format \"%1\": %2")
                       .arg(pattern, QString::fromLatin1(u_errorName(status))));
    return format;
}

}  // namespace

/// ICU's format for one pattern or pair of styles in one locale.
class DateFormatter::Writer {
  public:
    Writer(const QString& pattern, const icu::Locale& locale)
        : format_(formatOf(pattern, locale)) {}

    Writer(icu::DateFormat::EStyle date, icu::DateFormat::EStyle time, const icu::Locale& locale)
        : format_(icu::DateFormat::createDateTimeInstance(date, time, locale)) {
        if (format_ == nullptr)
            fatalError(QStringLiteral("no date format for \"%1\"")
                           .arg(QString::fromLatin1(locale.getName())));
    }

    /// offset: seconds east of Greenwich.
    QString text(double secondsSince1970, int offset) {
        if (offset != offset_) {
            format_->setTimeZone(icu::SimpleTimeZone(offset * 1000, u"Zephyrix/Offset"));
            offset_ = offset;
        }
        text_.remove();
        format_->format(secondsSince1970 * 1000.0, text_);
        return QStringView(text_.getBuffer(), text_.length()).toString();
    }

  private:
    std::unique_ptr<icu::DateFormat> format_;
    std::optional<int> offset_;  // what the format has been given
    icu::UnicodeString text_;    // kept for its memory
};

DateFormatter::DateFormatter() = default;
DateFormatter::~DateFormatter() = default;
DateFormatter::DateFormatter(DateFormatter&& other) noexcept = default;
DateFormatter& DateFormatter::operator=(DateFormatter&& other) noexcept = default;

void DateFormatter::setDateFormat(const QString& pattern) {
    pattern_ = pattern;
    writer_.reset();
}

void DateFormatter::setDateStyle(Style style) {
    dateStyle_ = style;
    writer_.reset();
}

void DateFormatter::setTimeStyle(Style style) {
    timeStyle_ = style;
    writer_.reset();
}

void DateFormatter::setLocale(const QByteArray& name) {
    locale_ = name;
    writer_.reset();
}

void DateFormatter::setTimeZone(const std::optional<QTimeZone>& zone) {
    zone_ = zone;
}

GregorianCalendar DateFormatter::calendarInForce() const {
    return GregorianCalendar(zone_.value_or(QTimeZone()));
}

std::unique_ptr<DateFormatter::Writer> DateFormatter::makeWriter() const {
    icu::Locale locale((locale_.isEmpty() ? UserLocale::forDates() : locale_).constData());
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    if (!pattern_.isEmpty())
        return std::make_unique<Writer>(pattern_, locale);
    const auto icuStyle = [](Style style) {
        return style == Style::Short ? icu::DateFormat::kShort : icu::DateFormat::kNone;
    };
    return std::make_unique<Writer>(icuStyle(dateStyle_), icuStyle(timeStyle_), locale);
}

QString DateFormatter::stringFromDate(Instant date) const {
    constexpr double farthest = 1e12;  // seconds, some 31,700 years
    const bool hasForm =
        !pattern_.isEmpty() || dateStyle_ != Style::None || timeStyle_ != Style::None;
    const double seconds = date.secondsSince1970();
    if (!hasForm || !(std::abs(seconds) <= farthest))
        return {};
    if (writer_ == nullptr)
        writer_ = makeWriter();
    return writer_->text(seconds, calendarInForce().secondsFromGMT(date));
}

std::optional<Instant> DateFormatter::dateFromString(const QString& text) const {
    if (pattern_.isEmpty())
        return std::nullopt;
    const auto fields = parseDateFields(pattern_, text);
    if (!fields)
        return std::nullopt;
    if (!fields->offset)
        return calendarInForce().instant(fields->wall);
    return GregorianCalendar(QTimeZone::utc())
        .instant(fields->wall)
        .addingSeconds(-*fields->offset);
}

}  // namespace zephyrix
