#pragma once

#include <functional>

#include <QUrl>

namespace zephyrix {

/// What the panel may ask of the program that shows it.
class ExtensionContext {
  public:
    ExtensionContext() = default;
    virtual ~ExtensionContext() = default;
    ExtensionContext(const ExtensionContext&) = delete;
    ExtensionContext& operator=(const ExtensionContext&) = delete;

    /// Opens the address with the program that is responsible for it. The handler, where there is
    /// one, learns whether that worked.
    virtual void openURL(const QUrl& address,
                         std::function<void(bool opened)> completionHandler) = 0;
};

}  // namespace zephyrix
