#include "ListedPlace.h"

#include <QStringList>

namespace zephyrix {

LocationResult locationOf(const ListedPlace& place) {
    LocationResult location;
    location.setUid(Number(static_cast<qlonglong>(place.uid)));
    location.setName(place.name);
    location.setLatitude(Number(place.coordinate.latitude));
    location.setLongitude(Number(place.coordinate.longitude));
    location.setTimezone(place.zone);
    location.setCountryName(place.country);
    if (!place.province.isEmpty())
        location.setProvinceName(place.province);
    location.setLocationType(Number(0));
    location.setInhabitants(Number(static_cast<qlonglong>(place.inhabitants)));
    return location;
}

QString areaOf(const ListedPlace& place) {
    QStringList parts;
    for (const QString& part : {place.province, place.country})
        if (!part.isEmpty() && part != place.name)
            parts << part;
    return parts.join(QLatin1String(", "));
}

}  // namespace zephyrix
