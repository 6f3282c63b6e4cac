#pragma once

#include "DescriptorWatch.h"
#include "foundation/Instant.h"

namespace zephyrix {

/// One moment of the wall clock, kept by the kernel: it is right also when the clock is set and
/// when the machine was asleep. Main thread.
class Alarm : public DescriptorWatch {
    Q_OBJECT

  public:
    Alarm();

    /// Replaces the earlier moment; one that has passed is due at the next turn of the event loop.
    void setFor(Instant moment);

  Q_SIGNALS:
    void due();
    /// The clock jumped (it was set, or the machine has resumed) while a moment was set.
    void clockChanged();

  protected:
    void ready() override;
};

}  // namespace zephyrix
