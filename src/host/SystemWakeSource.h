#pragma once

#include <memory>

#include "Alarm.h"
#include "RouteWatch.h"
#include "WakeSource.h"
#include "ZoneWatch.h"

namespace zephyrix {

/// The system's clock, zone and network. What is not watched has no file descriptor open.
class SystemWakeSource : public WakeSource {
    Q_OBJECT

  public:
    SystemWakeSource();
    ~SystemWakeSource() override;

    void wakeAt(Instant moment) override;
    void watchNetwork(bool watched) override;
    void stop() override;

  private:
    void startWatching();

    std::unique_ptr<Alarm> alarm_;
    std::unique_ptr<ZoneWatch> zone_;
    std::unique_ptr<RouteWatch> routes_;
};

}  // namespace zephyrix
