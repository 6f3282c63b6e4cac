#pragma once

#include <compare>

#include <QDateTime>
#include <QMetaType>
#include <QString>

namespace zephyrix {

/// A point in time: seconds since 1970-01-01 00:00:00 UTC, with fractions, without leap seconds.
class Instant {
  public:
    constexpr Instant() noexcept = default;
    [[nodiscard]] static constexpr Instant fromSecondsSince1970(double seconds) noexcept {
        return Instant(seconds);
    }
    /// From a valid date-time, to the millisecond.
    [[nodiscard]] static Instant fromDateTime(const QDateTime& dateTime);

    [[nodiscard]] constexpr double secondsSince1970() const noexcept { return seconds_; }
    /// Positive when this instant is the later one.
    [[nodiscard]] constexpr double secondsSince(Instant earlier) const noexcept {
        return seconds_ - earlier.seconds_;
    }
    [[nodiscard]] constexpr Instant addingSeconds(double seconds) const noexcept {
        return Instant(seconds_ + seconds);
    }
    /// In UTC, to the millisecond: the form in which a settings store keeps dates.
    [[nodiscard]] QDateTime toDateTime() const;
    /// "2015-06-01 10:00:00 +0000", for log lines.
    [[nodiscard]] QString description() const;

    // clang-tidy 14 takes the 0 inside the defaulted comparison for a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend constexpr auto operator<=>(Instant, Instant) noexcept = default;

  private:
    explicit constexpr Instant(double seconds) noexcept : seconds_(seconds) {}

    double seconds_ = 0.0;
};

}  // namespace zephyrix

Q_DECLARE_METATYPE(zephyrix::Instant)
