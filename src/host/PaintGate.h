#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "widget/WeatherFeed.h"

namespace zephyrix {

/// Keeps the feed from being asked until the panel has been painted for the first time: to load the
/// network takes longer than to show what is known already. Must outlive whoever asks. Main thread.
class PaintGate {
    using Then = std::function<void(const QString& base)>;

  public:
    /// From now on everything passes at once; what waits passes now.
    void open() {
        open_ = true;
        for (const auto& pass : std::exchange(waiting_, {}))
            pass();
    }

    [[nodiscard]] WeatherFeed::BaseAddress before(WeatherFeed::BaseAddress address) {
        return [this, address = std::move(address)](const Then& then) {
            if (open_)
                address(then);
            else
                waiting_.emplace_back([address, then] { address(then); });
        };
    }

  private:
    bool open_ = false;
    std::vector<std::function<void()>> waiting_;
};

}  // namespace zephyrix
