#pragma once

#include <cstdint>
#include <ctime>
#include <mutex>
#include <optional>
#include <sys/types.h>

#include <QString>

#include "weather/Place.h"

namespace zephyrix {

/// The place that the user has chosen in `zephyrix`. Always that of now: each question looks at the
/// settings file, which is read anew only when it is another one than before. Any thread.
class ChosenPlace {
  public:
    /// Nothing when none is chosen, and for one whose coordinates are of no use.
    [[nodiscard]] std::optional<Place> place() const;

  private:
    /// Tells one content of a file from another: settings are replaced as a whole.
    struct Stamp {
        dev_t device;
        ino_t file;
        off_t size;
        std::int64_t changed;  // nanoseconds

        bool operator==(const Stamp&) const = default;
        static std::optional<Stamp> of(const QString& path);
    };

    void read() const;

    mutable std::mutex mutex_;  // guards what follows
    mutable QString path_;      // empty until it was read first
    mutable std::optional<Stamp> stamp_;
    mutable std::optional<Place> place_;
};

}  // namespace zephyrix
