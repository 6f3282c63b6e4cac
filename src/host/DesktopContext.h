#pragma once

#include "widget/ExtensionContext.h"

namespace zephyrix {

/// Opens addresses with the desktop's programs.
class DesktopContext final : public ExtensionContext {
  public:
    void openURL(const QUrl& address, std::function<void(bool opened)> completionHandler) override;
};

}  // namespace zephyrix
