#pragma once

#include <optional>
#include <utility>

#include <QString>
#include <QTimeZone>
#include <QVariantMap>

#include "Coordinate.h"
#include "Location.h"

namespace zephyrix {

/// The place for which weather is shown: a city, or a personal weather station. A value; not for
/// several threads at once (see objTimeZone()).
///
///     const LocationResult place(suite->dictionary("location").value_or(QVariantMap()));
///     if (place.checkValidity()) ...
class LocationResult final : public Location, public LocationExtension {
  public:
    /// A place without any value.
    LocationResult() = default;
    /// Reads the dictionary form. Never fails: numbers that are missing or of another type become
    /// 0, texts that are missing or of another type stay absent, as do "uid" and "locationType"
    /// when missing. "provinceID" is written by asDict() but deliberately not read back.
    explicit LocationResult(const QVariantMap& dict);

    /// The place to fall back on: Berlin, with its coordinates in single precision.
    [[nodiscard]] static LocationResult defaultSearchResult();
    /// The same after a failed search, which country 99 and an absent province number tell apart.
    [[nodiscard]] static LocationResult defaultBadSearchResult();
    [[nodiscard]] static LocationResult locationResultWithDict(const QVariantMap& dict);

    /// The values that are not absent. Throws NamedException "QKInvalidLocationException" with
    /// reason "Name cannot be nil", "Longitude cannot be nil" or "Latitude cannot be nil", the
    /// first that holds. Numbers keep their kind.
    [[nodiscard]] QVariantMap asDict() const override;
    /// True for a uid of 1 or more, a name that is not empty, and coordinates that are not both 0.
    [[nodiscard]] bool checkValidity() const override;
    /// For log lines: "<LocationResult: address>" and the dictionary, or "<invalid LocationResult>"
    /// in its place. Throws as asDict() when a valid place lacks one of its coordinates.
    [[nodiscard]] QString description() const;
    /// Whether the other place has the same uid, by value. Another place without uid deliberately
    /// equals every record; a record without uid equals only such places. Null equals nothing.
    [[nodiscard]] bool isEqual(const Location* other) const;
    /// Kilometres along the great circle, on a sphere of radius 6371 km, with the accuracy of
    /// single-precision degrees. Not-a-number where rounding puts two points on one spot beyond it.
    [[nodiscard]] double distance(const Coordinate& location) const;

    /// The zone that `timezone` named when this was first asked; an invalid zone for an unknown or
    /// absent name, which is looked up again at the next call. Only setObjTimeZone() replaces a
    /// zone that was found.
    [[nodiscard]] QTimeZone objTimeZone() const;
    void setObjTimeZone(QTimeZone zone) { objTimeZone_ = std::move(zone); }

    /// The two lines with which a list or map shows the place.
    [[nodiscard]] std::optional<QString> title() const { return name_; }
    [[nodiscard]] std::optional<QString> subtitle() const { return sub_; }

    [[nodiscard]] bool isFavorite() const { return isFavorite_; }
    /// Leaves `favorite` as it is, deliberately unlike setFavorite().
    void setIsFavorite(bool isFavorite) { isFavorite_ = isFavorite; }
    [[nodiscard]] std::optional<Number> favorite() const { return favorite_; }
    /// Sets `isFavorite` too: true for a number other than 0.
    void setFavorite(std::optional<Number> favorite);

    [[nodiscard]] std::optional<Number> country() const override { return country_; }
    void setCountry(std::optional<Number> country) override { country_ = country; }
    [[nodiscard]] std::optional<Number> latitude() const override { return latitude_; }
    void setLatitude(std::optional<Number> latitude) override { latitude_ = latitude; }
    [[nodiscard]] std::optional<QString> timezone() const override { return timezone_; }
    void setTimezone(std::optional<QString> name) override { timezone_ = std::move(name); }
    [[nodiscard]] std::optional<Number> locationType() const override { return locationType_; }
    void setLocationType(std::optional<Number> type) override { locationType_ = type; }
    /// Metres; in no dictionary.
    [[nodiscard]] std::optional<Number> elevation() const { return elevation_; }
    void setElevation(std::optional<Number> elevation) { elevation_ = elevation; }
    /// The second line of text, see subtitle(); in no dictionary.
    [[nodiscard]] std::optional<QString> sub() const { return sub_; }
    void setSub(std::optional<QString> sub) { sub_ = std::move(sub); }
    [[nodiscard]] std::optional<QString> countryName() const override { return countryName_; }
    void setCountryName(std::optional<QString> name) override { countryName_ = std::move(name); }
    [[nodiscard]] std::optional<QString> provinceName() const override { return provinceName_; }
    void setProvinceName(std::optional<QString> name) override { provinceName_ = std::move(name); }
    [[nodiscard]] std::optional<QString> name() const override { return name_; }
    void setName(std::optional<QString> name) override { name_ = std::move(name); }
    [[nodiscard]] std::optional<Number> longitude() const override { return longitude_; }
    void setLongitude(std::optional<Number> longitude) override { longitude_ = longitude; }
    /// The kind of place as a search delivered it; in no dictionary.
    [[nodiscard]] std::optional<Number> type() const { return type_; }
    void setType(std::optional<Number> type) { type_ = type; }
    [[nodiscard]] std::optional<Number> uid() const override { return uid_; }
    void setUid(std::optional<Number> uid) override { uid_ = uid; }
    [[nodiscard]] std::optional<Number> provinceID() const { return provinceID_; }
    void setProvinceID(std::optional<Number> provinceID) { provinceID_ = provinceID; }
    [[nodiscard]] std::optional<Number> inhabitants() const { return inhabitants_; }
    void setInhabitants(std::optional<Number> inhabitants) { inhabitants_ = inhabitants; }
    [[nodiscard]] std::optional<Number> city() const { return city_; }
    void setCity(std::optional<Number> city) { city_ = city; }
    /// Present only for a personal weather station.
    [[nodiscard]] std::optional<QString> deviceId() const override { return deviceId_; }
    void setDeviceId(std::optional<QString> deviceId) override { deviceId_ = std::move(deviceId); }
    /// True for any `deviceId` that is present, an empty one too.
    [[nodiscard]] bool isNetatmoStation() const override { return deviceId_.has_value(); }

  private:
    bool isFavorite_ = false;
    std::optional<Number> country_;
    std::optional<Number> latitude_;
    std::optional<QString> timezone_;
    std::optional<Number> locationType_;
    std::optional<Number> elevation_;
    std::optional<QString> sub_;
    std::optional<QString> countryName_;
    std::optional<QString> provinceName_;
    std::optional<QString> name_;
    std::optional<Number> longitude_;
    std::optional<Number> type_;
    std::optional<Number> uid_;
    std::optional<Number> provinceID_;
    std::optional<Number> inhabitants_;
    std::optional<Number> favorite_;
    std::optional<Number> city_;
    std::optional<QString> deviceId_;
    mutable QTimeZone objTimeZone_;  // what objTimeZone() found; invalid until then
};

}  // namespace zephyrix
