#pragma once

#include <optional>

#include <QString>
#include <QVariantMap>

#include "foundation/Number.h"

namespace zephyrix {

/// What identifies a place: whatever adopts this can be compared with a LocationResult. Every value
/// may be absent; an absent text is not an empty one.
class Location {
  public:
    virtual ~Location() = default;

    /// The place's identifier in the weather service, an integer from 1.
    [[nodiscard]] virtual std::optional<Number> uid() const = 0;
    virtual void setUid(std::optional<Number> uid) = 0;
    /// The name to show, such as "Berlin".
    [[nodiscard]] virtual std::optional<QString> name() const = 0;
    virtual void setName(std::optional<QString> name) = 0;
    /// An IANA zone name, such as "Europe/Berlin".
    [[nodiscard]] virtual std::optional<QString> timezone() const = 0;
    virtual void setTimezone(std::optional<QString> timezone) = 0;
    /// Degrees, east positive.
    [[nodiscard]] virtual std::optional<Number> longitude() const = 0;
    virtual void setLongitude(std::optional<Number> longitude) = 0;
    /// Degrees, north positive.
    [[nodiscard]] virtual std::optional<Number> latitude() const = 0;
    virtual void setLatitude(std::optional<Number> latitude) = 0;
    /// The kind of place; 0 for a city.
    [[nodiscard]] virtual std::optional<Number> locationType() const = 0;
    virtual void setLocationType(std::optional<Number> locationType) = 0;

  protected:
    Location() = default;
    Location(const Location&) = default;
    Location& operator=(const Location&) = default;
    Location(Location&&) = default;
    Location& operator=(Location&&) = default;
};

/// What a place offers besides: its dictionary form, its check, its country and, where it is a
/// personal weather station, the station's device.
class LocationExtension {
  public:
    virtual ~LocationExtension() = default;

    /// The dictionary that the settings stores keep. Throws NamedException
    /// "QKInvalidLocationException" when a required value is absent.
    [[nodiscard]] virtual QVariantMap asDict() const = 0;
    /// Whether weather can be asked for this place.
    [[nodiscard]] virtual bool checkValidity() const = 0;
    /// The country's name to show, such as "Germany".
    [[nodiscard]] virtual std::optional<QString> countryName() const = 0;
    virtual void setCountryName(std::optional<QString> countryName) = 0;
    /// The province's or region's name to show.
    [[nodiscard]] virtual std::optional<QString> provinceName() const = 0;
    virtual void setProvinceName(std::optional<QString> provinceName) = 0;
    /// The country's number; 49 for Germany.
    [[nodiscard]] virtual std::optional<Number> country() const = 0;
    virtual void setCountry(std::optional<Number> country) = 0;

    // Only for places that can be stations; the others leave these three as they are.
    [[nodiscard]] virtual bool isNetatmoStation() const { return false; }
    [[nodiscard]] virtual std::optional<QString> deviceId() const { return std::nullopt; }
    virtual void setDeviceId(std::optional<QString> /*deviceId*/) {}

  protected:
    LocationExtension() = default;
    LocationExtension(const LocationExtension&) = default;
    LocationExtension& operator=(const LocationExtension&) = default;
    LocationExtension(LocationExtension&&) = default;
    LocationExtension& operator=(LocationExtension&&) = default;
};

}  // namespace zephyrix
