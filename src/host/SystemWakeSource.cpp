#include "SystemWakeSource.h"

namespace zephyrix {

SystemWakeSource::SystemWakeSource() = default;
SystemWakeSource::~SystemWakeSource() = default;

void SystemWakeSource::wakeAt(Instant moment) {
    if (!alarm_)
        startWatching();
    alarm_->setFor(moment);
}

void SystemWakeSource::startWatching() {
    alarm_ = std::make_unique<Alarm>();
    zone_ = std::make_unique<ZoneWatch>();
    connect(alarm_.get(), &Alarm::due, this, &WakeSource::due);
    connect(alarm_.get(), &Alarm::clockChanged, this, &WakeSource::clockChanged);
    connect(zone_.get(), &ZoneWatch::changed, this, &WakeSource::zoneChanged);
}

void SystemWakeSource::watchNetwork(bool watched) {
    if (watched == static_cast<bool>(routes_))
        return;
    if (!watched)
        return routes_.reset();
    routes_ = std::make_unique<RouteWatch>();
    connect(routes_.get(), &RouteWatch::defaultRouteAdded, this, &WakeSource::networkReturned);
}

void SystemWakeSource::stop() {
    alarm_.reset();
    zone_.reset();
    routes_.reset();
}

}  // namespace zephyrix
