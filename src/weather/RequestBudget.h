#pragma once

#include <deque>
#include <span>

#include "WeatherService.h"

namespace zephyrix {

/// Counts requests against the limits of a service: in no period, wherever it begins, are there
/// more than it allows. Used on one thread at a time.
class RequestBudget {
  public:
    /// The limits must outlive it.
    explicit RequestBudget(std::span<const RequestLimit> limits) : limits_(limits) {}

    /// Whether one more request may be sent now.
    [[nodiscard]] bool allows(Instant now) const;
    void count(Instant now);

  private:
    std::span<const RequestLimit> limits_;
    std::deque<Instant> requests_;  // in their order, as long ago as the longest period
};

}  // namespace zephyrix
