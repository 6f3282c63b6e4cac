#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QString>
#include <QTimeZone>

#include "GregorianCalendar.h"
#include "Instant.h"

namespace zephyrix {

/// Writes points in time as texts of a zone and a locale, and reads texts of a fixed form.
///
///     DateFormatter day;
///     day.setDateFormat(QStringLiteral("EEE"));
///     day.stringFromDate(now);                     // "Mon", "Mo."
///
///     DateFormatter parser;
///     parser.setDateFormat(QStringLiteral("yyyy-MM-dd"));
///     parser.setLocale("en_US_POSIX");
///     parser.dateFromString(QStringLiteral("2015-06-01"));  // local midnight of that day
///
/// Gregorian calendar. The zones are the system's. One thread at a time, any thread.
class DateFormatter {
  public:
    enum class Style : std::uint8_t { None, Short };

    /// With the user's locale (read at the first text), the system's zone, and no form at all.
    DateFormatter();
    ~DateFormatter();
    DateFormatter(DateFormatter&& other) noexcept;
    DateFormatter& operator=(DateFormatter&& other) noexcept;

    /// The form as a pattern of Unicode's date fields ("yyyy-MM-dd"). It goes before the styles.
    void setDateFormat(const QString& pattern);
    /// The form as the locale's own, of date and time: None leaves that half out.
    void setDateStyle(Style style);
    void setTimeStyle(Style style);
    /// An ICU name ("en_US_POSIX", "de_DE").
    void setLocale(const QByteArray& name);
    /// Nothing, and a zone that is not valid, stand for the system's zone, asked anew for each
    /// text.
    void setTimeZone(const std::optional<QTimeZone>& zone);

    /// Empty when neither pattern nor style is set, and for an instant beyond 30,000 years from
    /// 1970.
    [[nodiscard]] QString stringFromDate(Instant date) const;

    /// The instant of a text that has exactly the pattern's form; nothing otherwise, also for a day
    /// or an hour that does not exist (February 30, 24:00). Nothing is guessed: digits are 0 to 9,
    /// each field has the pattern's width, blanks or further text are no match.
    ///
    /// The pattern may have "yyyy", "MM", "dd", "HH", "mm", "ss", "ZZZZZ" ("Z" or an offset such as
    /// "+02:00") and literal text; another one is a programming error. A missing field is that of
    /// 1970-01-01 00:00:00. Without an offset in the text the time is one of the zone: in a gap it
    /// moves forward by the gap, in an overlap it is the first.
    [[nodiscard]] std::optional<Instant> dateFromString(const QString& text) const;

  private:
    class Writer;
    [[nodiscard]] GregorianCalendar calendarInForce() const;
    [[nodiscard]] std::unique_ptr<Writer> makeWriter() const;

    QString pattern_;
    Style dateStyle_ = Style::None;
    Style timeStyle_ = Style::None;
    QByteArray locale_;  // empty: the user's
    std::optional<QTimeZone> zone_;
    mutable std::unique_ptr<Writer> writer_;  // made at the first text after a change
};

}  // namespace zephyrix
