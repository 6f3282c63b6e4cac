#pragma once

#include <memory>

#include <QObject>
#include <QVariant>

#include "AppearanceSchedule.h"
#include "PanelView.h"
#include "StartGuard.h"
#include "widget/TodayViewController.h"

namespace zephyrix {

/// A panel for one place, from view load to its end: the guarded first layout, and what another
/// program changes in the shared settings. New units show at once; for another place the host
/// throws this panel away and makes a new one.
class LivePanel : public QObject {
    Q_OBJECT

  public:
    struct Size {
        int width = 0;       // points
        double scale = 1.0;  // device pixels a point
    };

    /// `expanded` begins with the forecast row, whatever the settings say. The context is not
    /// owned. Without a source of wake-ups of its own it uses the system's.
    LivePanel(WeatherFeed::BaseAddress feed, ExtensionContext& context, const Size& size,
              bool expanded, std::unique_ptr<WakeSource> wakes = nullptr);

    [[nodiscard]] TodayViewController& controller() noexcept { return controller_; }
    [[nodiscard]] PanelView& view() noexcept { return view_; }

    /// The panel comes into sight, and stays up to date there; it goes out of sight. Neither does
    /// anything twice.
    void appear();
    void disappear();

  Q_SIGNALS:
    /// Another program chose another place, or changed this one, or none is chosen any more.
    void placeChanged();
    /// Another program chose other units or symbols; they show with the next layout pass.
    void unitsChanged();

  private:
    [[nodiscard]] QVariant storedPlace() const;
    [[nodiscard]] static std::int64_t storedSymbols();
    void takeNews();
    void takeSymbols();
    void layOutRows();

    StartGuard guard_;
    TodayViewController controller_;
    PanelView view_;
    AppearanceSchedule schedule_;
    QVariant place_;
    std::int64_t symbolSet_;
    bool inSight_ = false;
};

}  // namespace zephyrix
