#include "DesktopContext.h"

#include <QDesktopServices>

#include "foundation/Log.h"

namespace zephyrix {

void DesktopContext::openURL(const QUrl& address,
                             std::function<void(bool opened)> completionHandler) {
    const bool opened = QDesktopServices::openUrl(address);
    if (!opened)
        logLine(QStringLiteral("no program opens %1").arg(address.toDisplayString()));
    if (completionHandler)
        completionHandler(opened);
}

}  // namespace zephyrix
