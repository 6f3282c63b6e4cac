#include "DescriptorWatch.h"

#include <cerrno>
#include <unistd.h>

#include "foundation/Log.h"

namespace zephyrix {

DescriptorWatch::DescriptorWatch(int descriptor, const QString& purpose) : descriptor_(descriptor) {
    if (descriptor_ < 0) {
        logLine(QStringLiteral("the panel cannot follow %1: %2").arg(purpose, qt_error_string()));
        return;
    }
    auto* const notifier = new QSocketNotifier(descriptor_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { ready(); });
}

DescriptorWatch::~DescriptorWatch() {
    for (QSocketNotifier* notifier : findChildren<QSocketNotifier*>())
        delete notifier;  // before its descriptor is closed
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

}  // namespace zephyrix
