#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>

#include "foundation/Instant.h"

namespace zephyrix {

/// A number from 0 to 1, 1 excluded: chance, or what a test puts in its place.
using Chance = std::function<double()>;

/// How long not to ask after requests that went wrong: 10 s, 30 s, 2 min, then every 10 min, and
/// up to a fifth longer by chance, so that many who were refused together do not come back
/// together. Used on one thread at a time.
class Patience {
  public:
    [[nodiscard]] bool isOver(Instant now) const noexcept { return now >= until_; }
    [[nodiscard]] Instant until() const noexcept { return until_; }

    /// A failure of a request that was sent at `now`. Requests under way together fail once.
    void failed(Instant now, const Chance& chance) {
        if (!isOver(now))
            return;
        constexpr std::array steps = {10.0, 30.0, 120.0, 600.0};
        const double step = steps.at(std::min(failures_, steps.size() - 1));
        ++failures_;
        atLeastUntil(now.addingSeconds(step * (1.0 + 0.2 * chance())));
    }
    void succeeded() noexcept { *this = Patience(); }
    void atLeastUntil(Instant time) noexcept { until_ = std::max(until_, time); }

  private:
    std::size_t failures_ = 0;  // since the last success
    Instant until_;
};

}  // namespace zephyrix
