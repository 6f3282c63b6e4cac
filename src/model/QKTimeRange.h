#pragma once

#include <optional>

#include <QMetaType>
#include <QString>
#include <QTimeZone>

#include "Location.h"
#include "foundation/Instant.h"

namespace zephyrix {

/// A pair of instants, mostly from the start of one day to the start of another. A value; the
/// factories may be called on any thread.
///
/// Days are counted from today in the asked zone; an invalid zone stands for the default zone. A
/// midnight that the zone skips is the first moment after it. Days are as long as the zone makes
/// them: mostly 23 or 25 hours where clocks change.
///
///     const auto tomorrow = QKTimeRange::timeRangeFromDay(1, 2, zone);
class QKTimeRange {
  public:
    /// Without start and end.
    QKTimeRange() = default;

    /// From now for a number of hours, which may be negative. The zone has no influence.
    [[nodiscard]] static QKTimeRange timeRangeFromNowToOffset(int hours, const QTimeZone& timeZone);
    [[nodiscard]] static QKTimeRange timeRangeFromDay(int from, int toDay,
                                                      const QTimeZone& timeZone);
    /// In the zone that the place names.
    [[nodiscard]] static QKTimeRange localTimeRangeFromDay(int from, int toDay,
                                                           const Location& location);
    [[nodiscard]] static QKTimeRange utcTimeRangeFromDay(int from, int toDay);
    /// The zone's midnights as if its clocks showed UTC: each end is moved by the zone's offset at
    /// that end.
    [[nodiscard]] static QKTimeRange localTimeRangeUsingTimeZoneOffsetFromDay(
        int from, int toDay, const QTimeZone& timeZone);

    /// The first instant of the range.
    [[nodiscard]] std::optional<Instant> startDtg() const { return startDtg_; }
    void setStartDtg(std::optional<Instant> startDtg) { startDtg_ = startDtg; }
    /// The first instant after the range. Nothing keeps it from lying before the start.
    [[nodiscard]] std::optional<Instant> endDtg() const { return endDtg_; }
    void setEndDtg(std::optional<Instant> endDtg) { endDtg_ = endDtg; }

    /// Start and end for log lines, "(null)" for a missing one.
    [[nodiscard]] QString description() const;

    friend bool operator==(const QKTimeRange&, const QKTimeRange&) = default;

  private:
    QKTimeRange(Instant startDtg, Instant endDtg) : startDtg_(startDtg), endDtg_(endDtg) {}

    std::optional<Instant> startDtg_;
    std::optional<Instant> endDtg_;
};

}  // namespace zephyrix

Q_DECLARE_METATYPE(zephyrix::QKTimeRange)
