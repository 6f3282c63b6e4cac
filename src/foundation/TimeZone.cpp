#include "TimeZone.h"

#include <QFileInfo>

namespace zephyrix {

namespace {

// Qt also takes folders of the zone data ("Europe"), rules that describe themselves ("ABC3") and ""
// for zones. A place's zone is one that the zone data names.
bool isNamedByZoneData(const QString& name) {
    if (name.isEmpty() || name.contains(QLatin1String("..")))
        return false;
    return QFileInfo(QStringLiteral("/usr/share/zoneinfo/") + name).isFile() ||
           QTimeZone::isTimeZoneIdAvailable(name.toUtf8());
}

}  // namespace

QTimeZone timeZoneWithName(const QString& name) {
    return isNamedByZoneData(name) ? QTimeZone(name.toUtf8()) : QTimeZone();
}

QTimeZone defaultTimeZone() {
    const QTimeZone zone = QTimeZone::systemTimeZone();
    return zone.isValid() ? zone : QTimeZone::utc();
}

}  // namespace zephyrix
