#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <QDate>
#include <QObject>

#include "WakeSource.h"
#include "widget/TodayViewController.h"

namespace zephyrix {

/// Keeps a panel that stays on screen up to date. The controller decides only when it appears
/// whether to fetch, so this lets it appear again while it stays visible:
///
/// - when its document comes of age;
/// - after a failed fetch, in 1, 2, 5, then every 10 minutes. A success, a new sight of the panel,
///   a return of the network and a change of the clock begin that row anew;
/// - when the network comes back, a few seconds later; looked for only after a failed fetch;
/// - when the clock was set or the machine resumed.
///
/// It reloads the table, without a fetch, when what the rows show changes with the time alone: at
/// local midnight, at a change of zone or clock, and when an old observation is an hour older.
///
/// Between two events there is exactly one moment set. While the panel is hidden, or has no place,
/// nothing is set, open or watched. The controller must outlive it. Main thread.
///
///     AppearanceSchedule schedule(controller);
///     controller.viewWillAppear(false);
///     schedule.panelAppeared();
class AppearanceSchedule : public QObject {
    Q_OBJECT

  public:
    /// Made when the rows are laid out first. Without a source of its own it uses the system's.
    explicit AppearanceSchedule(TodayViewController& controller,
                                std::unique_ptr<WakeSource> wakes = nullptr);
    ~AppearanceSchedule() override;

    /// After the controller's viewWillAppear().
    void panelAppeared();
    void panelDisappeared();

  private:
    /// What the rows show besides their document.
    struct TimeShown {
        QByteArray zone;
        QDate day;
        std::optional<std::int64_t> hours;  // the age of an old observation
        friend bool operator==(const TimeShown&, const TimeShown&) = default;
    };

    [[nodiscard]] bool hasPlace() const;
    [[nodiscard]] const Obs* observation() const;  // null without one
    [[nodiscard]] TimeShown timeToShow() const;
    [[nodiscard]] Instant nextReload() const;
    [[nodiscard]] std::optional<Instant> nextAppearance() const;
    void wakeUp();
    void takeClock();
    void takeNetwork();
    void takeRefresh(bool succeeded);
    void reload();
    void appearAgain();
    void plan();

    TodayViewController& controller_;
    std::unique_ptr<WakeSource> wakes_;
    TimeShown shown_;
    bool visible_ = false;
    bool failing_ = false;            // since the last fetch, until one succeeds
    std::size_t retries_ = 0;         // the next place in the row of delays
    std::optional<Instant> retryAt_;  // set between a failed fetch and the next
};

}  // namespace zephyrix
