#pragma once

#include <span>

#include "DescriptorWatch.h"

namespace zephyrix {

/// Tells when the machine gets a way to the world: the kernel's word that a default route was
/// added, which every network service ends with. Main thread.
class RouteWatch : public DescriptorWatch {
    Q_OBJECT

  public:
    RouteWatch();

    /// Whether the kernel's messages (rtnetlink, one after the other) tell of a new default route.
    [[nodiscard]] static bool tellsOfDefaultRoute(std::span<const char> messages);

  Q_SIGNALS:
    void defaultRouteAdded();

  protected:
    void ready() override;
};

}  // namespace zephyrix
