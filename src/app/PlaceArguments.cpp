#include "PlaceArguments.h"

#include <array>
#include <cmath>

#include <QCommandLineParser>

#include "Command.h"
#include "foundation/Bundle.h"
#include "foundation/TimeZone.h"
#include "places/CoordinateUid.h"
#include "places/PlaceList.h"

namespace zephyrix {

namespace {

struct PlaceOption {
    const char* name;
    bool required;
};

constexpr std::array<PlaceOption, 7> placeOptions = {{
    {"uid", false},
    {"name", true},
    {"lat", true},
    {"lon", true},
    {"zone", false},
    {"country-name", false},
    {"province-name", false},
}};

/// The values of the options of "place set", checked for being there and nothing else.
class SetArguments {
  public:
    explicit SetArguments(const QStringList& arguments) {
        for (const PlaceOption& option : placeOptions)
            parser_.addOption({QString::fromLatin1(option.name), {}, QStringLiteral("value")});
        if (!parser_.parse(QStringList(QString()) + arguments))
            throw CommandError::usage(parser_.errorText());
        if (!parser_.positionalArguments().isEmpty())
            throw CommandError::usage(QStringLiteral("what does \"%1\" mean?")
                                          .arg(parser_.positionalArguments().constFirst()));
        for (const PlaceOption& option : placeOptions)
            if (option.required && !parser_.isSet(QString::fromLatin1(option.name)))
                throw CommandError::usage(
                    QStringLiteral("--%1 is missing").arg(QLatin1String(option.name)));
    }

    [[nodiscard]] QString text(const char* option) const {
        return parser_.value(QString::fromLatin1(option)).simplified();
    }

    [[nodiscard]] std::optional<QString> textIfGiven(const char* option) const {
        const QString value = text(option);
        return value.isEmpty() ? std::nullopt : std::optional(value);
    }

    [[nodiscard]] double degrees(const char* option, double most) const {
        bool isNumber = false;
        const double value = text(option).toDouble(&isNumber);
        if (!isNumber || !(std::fabs(value) <= most))
            throw CommandError::usage(QStringLiteral("--%1: \"%2\" is no number from -%3 to %3")
                                          .arg(QLatin1String(option), text(option))
                                          .arg(most));
        return value;
    }

  private:
    QCommandLineParser parser_;
};

std::int64_t uidFrom(const QString& text) {
    bool isNumber = false;
    const qlonglong uid = text.toLongLong(&isNumber);
    if (!isNumber || uid < 1)
        throw CommandError::usage(
            QStringLiteral("the uid \"%1\" is no whole number from 1").arg(text));
    return uid;
}

LocationResult listedPlace(std::int64_t uid) {
    LocationResult berlin = LocationResult::defaultSearchResult();
    if (berlin.uid()->integerValue() == uid)
        return berlin;
    const auto place = PlaceList(Bundle::main().preferredLocalizations().first()).place(uid);
    if (!place)
        throw CommandError::usage(
            QStringLiteral("the list has no place %1; try \"zephyrix place search\"").arg(uid));
    return locationOf(*place);
}

LocationResult describedPlace(const SetArguments& arguments) {
    const Coordinate where{.latitude = arguments.degrees("lat", 90.0),
                           .longitude = arguments.degrees("lon", 180.0)};
    const auto uid = arguments.textIfGiven("uid");
    const auto zone = arguments.textIfGiven("zone");
    LocationResult place;
    place.setUid(Number(static_cast<qlonglong>(uid ? uidFrom(*uid) : uidOfCoordinate(where))));
    place.setName(arguments.text("name"));
    place.setLatitude(Number(where.latitude));
    place.setLongitude(Number(where.longitude));
    place.setTimezone(zone ? *zone : PlaceList(QStringLiteral("en")).zoneAt(where));
    place.setCountryName(arguments.textIfGiven("country-name"));
    place.setProvinceName(arguments.textIfGiven("province-name"));
    place.setLocationType(Number(0));
    if (place.name()->isEmpty())
        throw CommandError::usage(QStringLiteral("--name must not be empty"));
    if (!timeZoneWithName(*place.timezone()).isValid())
        throw CommandError::usage(
            QStringLiteral("--zone: \"%1\" is no time zone; a zone is named like Europe/Berlin")
                .arg(*place.timezone()));
    if (!place.checkValidity())
        throw CommandError::usage(
            QStringLiteral("a place at exactly 0 degrees north, 0 degrees east counts as none"));
    return place;
}

}  // namespace

LocationResult placeFromArguments(const QStringList& arguments) {
    const bool isUidAlone =
        arguments.size() == 1 && !arguments.first().startsWith(QLatin1Char('-'));
    return isUidAlone ? listedPlace(uidFrom(arguments.first()))
                      : describedPlace(SetArguments(arguments));
}

}  // namespace zephyrix
