#pragma once

#include <QString>

namespace zephyrix {

/// Whether the desktop shows the panel when the user logs in: the entry
/// "$XDG_CONFIG_HOME/autostart/zephyrix-panel.desktop", as every desktop reads it.
class LoginEntry {
  public:
    [[nodiscard]] static QString fileName();
    /// False also for an entry that was switched off ("Hidden=true").
    [[nodiscard]] static bool isOn();
    /// Writes or removes the entry. Raises CommandError when that cannot be done.
    static void set(bool on);
};

}  // namespace zephyrix
