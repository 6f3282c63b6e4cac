#pragma once

#include <functional>

#include "Instant.h"

namespace zephyrix {

/// The one source of "now". May be asked on any thread.
class Clock {
  public:
    [[nodiscard]] static Instant now();

  private:
    friend class ReplacedClock;
    static void replaceSource(std::function<Instant()> source);
};

/// While it lives, "now" is what its function says; then the system's clock again. One at a time,
/// made and ended while no other thread asks for the time. For tests:
///
///     Instant now = Instant::fromSecondsSince1970(1433152800);
///     ReplacedClock clock([&] { return now; });
class ReplacedClock {
  public:
    explicit ReplacedClock(std::function<Instant()> source);
    ~ReplacedClock();
    ReplacedClock(const ReplacedClock&) = delete;
    ReplacedClock& operator=(const ReplacedClock&) = delete;
};

}  // namespace zephyrix
