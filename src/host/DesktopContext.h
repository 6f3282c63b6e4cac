#pragma once

#include <QObject>

#include "widget/ExtensionContext.h"

namespace zephyrix {

/// Opens addresses with the desktop's programs. The desktop says "opened" also where no program is
/// registered for an address's scheme, so that is asked before.
class DesktopContext final : public ExtensionContext {
  public:
    void openURL(const QUrl& address, std::function<void(bool opened)> completionHandler) override;

  private:
    QObject questions_;  // owns those that have no answer yet
};

}  // namespace zephyrix
