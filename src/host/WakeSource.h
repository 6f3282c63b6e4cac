#pragma once

#include <QObject>

#include "foundation/Instant.h"

namespace zephyrix {

/// What can wake a panel that nobody touches: a moment, and changes around it. One moment at a time
/// and nothing periodic. Before the first wakeAt() and after stop() it holds nothing open and tells
/// nothing. What hears a signal of it may call wakeAt(), but neither end a watch nor stop. Main
/// thread.
class WakeSource : public QObject {
    Q_OBJECT

  public:
    /// Replaces the earlier moment. It is told once, from the event loop; one that has passed, at
    /// the next turn. From here on changes of clock and zone are told, too.
    virtual void wakeAt(Instant moment) = 0;
    /// Whether a network that comes back is told.
    virtual void watchNetwork(bool watched) = 0;
    virtual void stop() = 0;

  Q_SIGNALS:
    void due();
    /// The clock was set, or the machine has resumed from suspend.
    void clockChanged();
    void zoneChanged();
    void networkReturned();
};

}  // namespace zephyrix
