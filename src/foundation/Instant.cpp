#include "Instant.h"

#include <cmath>

namespace zephyrix {

Instant Instant::fromDateTime(const QDateTime& dateTime) {
    return Instant(static_cast<double>(dateTime.toMSecsSinceEpoch()) / 1000.0);
}

QDateTime Instant::toDateTime() const {
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds_ * 1000.0), Qt::UTC);
}

QString Instant::description() const {
    return toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss +0000"));
}

}  // namespace zephyrix
