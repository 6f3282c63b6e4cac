#include "PlaceDirectory.h"

#include <cmath>
#include <utility>

#include "SmoothNoise.h"
#include "foundation/TimeZone.h"
#include "model/LocationResult.h"
#include "places/CoordinateUid.h"

namespace zephyrix {

namespace {

Place inventedPlace(std::int64_t id) {
    const auto seed = static_cast<std::uint64_t>(id);
    const double latitude = -45.0 + 110.0 * fractionOf(mixed(seed, 1));  // 45 south to 65 north
    const double longitude = -180.0 + 360.0 * fractionOf(mixed(seed, 2));
    return {id, latitude, longitude, zoneOfLongitude(longitude)};
}

}  // namespace

QTimeZone zoneOfLongitude(double degreesEast) {
    return QTimeZone(static_cast<int>(std::lround(degreesEast / 15.0)) * 3600);
}

std::optional<Place> placeOfRecord(const LocationResult& record) {
    if (!record.checkValidity() || !record.latitude() || !record.longitude())
        return std::nullopt;
    const double latitude = record.latitude()->doubleValue();
    const double longitude = record.longitude()->doubleValue();
    if (!(std::fabs(latitude) <= 90.0 && std::fabs(longitude) <= 180.0))
        return std::nullopt;
    const QTimeZone zone = timeZoneWithName(record.timezone().value_or(QString()));
    return Place{record.uid()->integerValue(), latitude, longitude,
                 zone.isValid() ? zone : zoneOfLongitude(longitude)};
}

PlaceDirectory::PlaceDirectory(std::optional<Place> everyPlace, Unknown unknown)
    : everyPlace_(std::move(everyPlace)),
      unknown_(unknown),
      defaultPlace_(placeOfRecord(LocationResult::defaultSearchResult())) {}

std::optional<Place> PlaceDirectory::placeOf(std::int64_t id) const {
    if (everyPlace_) {
        Place place = *everyPlace_;
        place.id = id;
        return place;
    }
    if (auto place = chosen_.place(); place && place->id == id)
        return place;
    if (defaultPlace_ && defaultPlace_->id == id)
        return defaultPlace_;
    if (auto place = listedPlace(id))
        return place;
    return unknown_ == Unknown::Invented ? std::optional(inventedPlace(id)) : std::nullopt;
}

std::optional<Place> PlaceDirectory::listedPlace(std::int64_t id) const {
    const std::lock_guard lock(listMutex_);
    if (!list_)
        list_ = std::make_unique<PlaceList>(QStringLiteral("en"));
    if (const auto where = coordinateOfUid(id))
        return Place{id, where->latitude, where->longitude,
                     timeZoneWithName(list_->zoneAt(*where))};
    const auto place = list_->place(id);
    return place ? placeOfRecord(locationOf(*place)) : std::nullopt;
}

}  // namespace zephyrix
