#include "LocationResult.h"

#include <cmath>

#include <QLatin1String>
#include <QMetaType>

#include "foundation/Angle.h"
#include "foundation/Description.h"
#include "foundation/NamedException.h"
#include "foundation/TimeZone.h"

namespace zephyrix {

namespace {

constexpr double earthRadius = 6371.0;  // kilometres

namespace key {
constexpr QLatin1String city("city");
constexpr QLatin1String country("country");
constexpr QLatin1String countryName("country-name");
constexpr QLatin1String deviceId("deviceId");
constexpr QLatin1String favorite("favorite");
constexpr QLatin1String inhabitants("inhabitants");
constexpr QLatin1String latitude("latitude");
constexpr QLatin1String locationType("locationType");
constexpr QLatin1String longitude("longitude");
constexpr QLatin1String name("name");
constexpr QLatin1String provinceID("provinceID");
constexpr QLatin1String provinceName("province-name");
constexpr QLatin1String timezone("timezone");
constexpr QLatin1String uid("uid");
}  // namespace key

Number integerEntry(const QVariantMap& dict, QLatin1String name) {
    return Number(integerValueOf(dict.value(name)));
}

std::optional<Number> integerEntryIfPresent(const QVariantMap& dict, QLatin1String name) {
    if (!dict.value(name).isValid())
        return std::nullopt;
    return integerEntry(dict, name);
}

Number doubleEntry(const QVariantMap& dict, QLatin1String name) {
    return Number(doubleValueOf(dict.value(name)));
}

std::optional<QString> textEntry(const QVariantMap& dict, QLatin1String name) {
    const QVariant value = dict.value(name);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

void put(QVariantMap& dict, QLatin1String name, const std::optional<Number>& number) {
    if (number)
        dict.insert(name, number->toVariant());
}

void put(QVariantMap& dict, QLatin1String name, const std::optional<QString>& text) {
    if (text)
        dict.insert(name, *text);
}

template <typename Value>
void putRequired(QVariantMap& dict, QLatin1String name, const Value& value, QLatin1String reason) {
    if (!value)
        throw NamedException(QStringLiteral("QKInvalidLocationException"), reason);
    put(dict, name, value);
}

bool isNonZero(const std::optional<Number>& coordinate) {
    return coordinate && coordinate->floatValue() != 0.0F;
}

double doubleOrZero(const std::optional<Number>& number) {
    return number ? number->doubleValue() : 0.0;
}

/// Single precision is deliberate: stored coordinates are floats, and distances have always been
/// those between floats.
double radiansInSinglePrecision(double degrees) {
    return deg2rad(static_cast<double>(static_cast<float>(degrees)));
}

}  // namespace

LocationResult::LocationResult(const QVariantMap& dict)
    : country_(integerEntry(dict, key::country)),
      latitude_(doubleEntry(dict, key::latitude)),
      timezone_(textEntry(dict, key::timezone)),
      locationType_(integerEntryIfPresent(dict, key::locationType)),
      countryName_(textEntry(dict, key::countryName)),
      provinceName_(textEntry(dict, key::provinceName)),
      name_(textEntry(dict, key::name)),
      longitude_(doubleEntry(dict, key::longitude)),
      uid_(integerEntryIfPresent(dict, key::uid)),
      inhabitants_(integerEntry(dict, key::inhabitants)),
      city_(integerEntry(dict, key::city)),
      deviceId_(textEntry(dict, key::deviceId)) {
    setFavorite(integerEntry(dict, key::favorite));
}

LocationResult LocationResult::defaultSearchResult() {
    LocationResult berlin;
    berlin.uid_ = Number(18228265);
    berlin.country_ = Number(49);
    berlin.name_ = QStringLiteral("Berlin");
    berlin.countryName_ = QStringLiteral("Germany");
    berlin.provinceName_ = QStringLiteral("Berlin");
    berlin.provinceID_ = Number(0);
    berlin.latitude_ = Number(52.53F);
    berlin.longitude_ = Number(13.38F);
    berlin.timezone_ = QStringLiteral("Europe/Berlin");
    berlin.locationType_ = Number(0);
    return berlin;
}

LocationResult LocationResult::defaultBadSearchResult() {
    LocationResult berlin = defaultSearchResult();
    berlin.country_ = Number(99);
    berlin.provinceID_.reset();
    return berlin;
}

LocationResult LocationResult::locationResultWithDict(const QVariantMap& dict) {
    return LocationResult(dict);
}

QVariantMap LocationResult::asDict() const {
    QVariantMap dict;
    put(dict, key::city, city_);
    put(dict, key::country, country_);
    put(dict, key::countryName, countryName_);
    put(dict, key::provinceName, provinceName_);
    put(dict, key::provinceID, provinceID_);
    putRequired(dict, key::name, name_, QLatin1String("Name cannot be nil"));
    putRequired(dict, key::longitude, longitude_, QLatin1String("Longitude cannot be nil"));
    putRequired(dict, key::latitude, latitude_, QLatin1String("Latitude cannot be nil"));
    put(dict, key::timezone, timezone_);
    put(dict, key::locationType, locationType_);
    put(dict, key::uid, uid_);
    put(dict, key::inhabitants, inhabitants_);
    put(dict, key::favorite, favorite_);
    put(dict, key::deviceId, deviceId_);
    return dict;
}

bool LocationResult::checkValidity() const {
    if (!uid_ || uid_->integerValue() < 1)
        return false;
    if (!name_ || name_->isEmpty())
        return false;
    return isNonZero(latitude_) || isNonZero(longitude_);
}

QString LocationResult::description() const {
    const QString base =
        QStringLiteral("<LocationResult: 0x%1>").arg(reinterpret_cast<quintptr>(this), 0, 16);
    return QStringLiteral("%1, %2").arg(base, checkValidity()
                                                  ? zephyrix::description(asDict())
                                                  : QStringLiteral("<invalid LocationResult>"));
}

bool LocationResult::isEqual(const Location* other) const {
    if (other == nullptr)
        return false;
    const std::optional<Number> otherUid = other->uid();
    return !otherUid || otherUid == uid_;
}

double LocationResult::distance(const Coordinate& location) const {
    const double lat1 = radiansInSinglePrecision(doubleOrZero(latitude_));
    const double lat2 = radiansInSinglePrecision(location.latitude);
    const double lon = radiansInSinglePrecision(doubleOrZero(longitude_) - location.longitude);
    return std::acos(std::sin(lat1) * std::sin(lat2) +
                     std::cos(lat1) * std::cos(lat2) * std::cos(lon)) *
           earthRadius;
}

QTimeZone LocationResult::objTimeZone() const {
    if (!objTimeZone_.isValid())
        objTimeZone_ = timeZoneWithName(timezone_.value_or(QString()));
    return objTimeZone_;
}

void LocationResult::setFavorite(std::optional<Number> favorite) {
    favorite_ = favorite;
    isFavorite_ = favorite && favorite->boolValue();
}

}  // namespace zephyrix
