#pragma once

#include <optional>

#include "host/WakeSource.h"

namespace zephyrix::testing {

/// Wakes nobody by itself: the test is the clock, the zone and the network.
class ToldWakeSource : public WakeSource {
  public:
    void wakeAt(Instant moment) override { moment_ = moment; }
    void watchNetwork(bool watched) override { watchesNetwork_ = watched; }
    void stop() override {
        moment_.reset();
        watchesNetwork_ = false;
    }

    [[nodiscard]] const std::optional<Instant>& moment() const noexcept { return moment_; }
    [[nodiscard]] bool watchesNetwork() const noexcept { return watchesNetwork_; }
    void comeDue() {
        moment_.reset();
        Q_EMIT due();
    }

  private:
    std::optional<Instant> moment_;
    bool watchesNetwork_ = false;
};

}  // namespace zephyrix::testing
