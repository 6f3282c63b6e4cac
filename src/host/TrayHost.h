#pragma once

#include <QObject>

namespace zephyrix {

/// Whether there is a tray that shows status notifier items, and its coming and going. Without a
/// session bus there is none, and no bus is started to ask. Main thread.
class TrayHost : public QObject {
    Q_OBJECT

  public:
    /// Asks the bus, and waits for its answer a quarter of a second at most.
    TrayHost();

    [[nodiscard]] bool isPresent() const noexcept { return present_; }

  Q_SIGNALS:
    void changed();

  private:
    // By this form D-Bus signals can be connected to it.
    Q_SLOT void ask();

    bool present_ = false;
};

}  // namespace zephyrix
