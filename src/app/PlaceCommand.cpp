#include "PlaceCommand.h"

#include <array>
#include <cmath>

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>

#include "SharedSettings.h"
#include "foundation/TimeZone.h"
#include "model/LocationResult.h"

namespace zephyrix {

namespace {

const QString locationKey = QStringLiteral("location");

struct PlaceOption {
    const char* name;
    bool required;
};

constexpr std::array<PlaceOption, 7> placeOptions = {{
    {"uid", true},
    {"name", true},
    {"lat", true},
    {"lon", true},
    {"zone", true},
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

Number uidFrom(const QString& text) {
    bool isNumber = false;
    const qlonglong uid = text.toLongLong(&isNumber);
    if (!isNumber || uid < 1)
        throw CommandError::usage(
            QStringLiteral("--uid: \"%1\" is no whole number from 1").arg(text));
    return Number(uid);
}

LocationResult placeFrom(const SetArguments& arguments) {
    LocationResult place;
    place.setUid(uidFrom(arguments.text("uid")));
    place.setName(arguments.text("name"));
    place.setLatitude(Number(arguments.degrees("lat", 90.0)));
    place.setLongitude(Number(arguments.degrees("lon", 180.0)));
    place.setTimezone(arguments.text("zone"));
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

void store(const LocationResult& place) {
    const auto settings = openSharedSettings();
    settings->set(locationKey, place.asDict());
    save(*settings);
}

QVariantMap storedDictionary() {
    const auto dictionary = openSharedSettings()->dictionary(locationKey);
    if (!dictionary)
        throw CommandError::failure(
            QStringLiteral("no place is chosen; try \"zephyrix place default\""));
    if (!LocationResult(*dictionary).checkValidity())
        throw CommandError::failure(
            QStringLiteral("the stored place is not usable; choose it again"));
    return *dictionary;
}

QString degreesText(const std::optional<Number>& degrees) {
    return QString::number(degrees->doubleValue(), 'g', 7);  // single precision at the most
}

void show(const QStringList& arguments, QTextStream& out) {
    const bool asJson = arguments == QStringList(QStringLiteral("--json"));
    if (!arguments.isEmpty() && !asJson)
        throw CommandError::usage(QStringLiteral("place show takes --json and nothing else"));
    if (!asJson)
        return printPlace(out);
    out << QJsonDocument(QJsonObject::fromVariantMap(storedDictionary())).toJson();
}

void run(const QStringList& arguments, QTextStream& out) {
    const QString verb = arguments.value(0);
    if (verb == QLatin1String("show"))
        return show(arguments.mid(1), out);
    if (verb == QLatin1String("set"))
        store(placeFrom(SetArguments(arguments.mid(1))));
    else if (verb == QLatin1String("default") && arguments.size() == 1)
        store(LocationResult::defaultSearchResult());
    else
        throw CommandError::usage(QStringLiteral("place must be followed by default, set or show"));
    printPlace(out);
}

}  // namespace

void printPlace(QTextStream& out) {
    const LocationResult place(storedDictionary());
    out << *place.name();
    for (const auto& part : {place.provinceName(), place.countryName()})
        if (part && part != place.name())
            out << ", " << *part;
    out << "\n  uid        " << place.uid()->text() << "\n  latitude   "
        << degreesText(place.latitude()) << "\n  longitude  " << degreesText(place.longitude())
        << "\n  zone       " << place.timezone().value_or(QStringLiteral("none")) << '\n';
}

const Command placeCommand = {
    "place",
    "  place default                 the weather of Berlin\n"
    "  place set --uid N --name TEXT --lat DEGREES --lon DEGREES --zone ZONE\n"
    "            [--country-name TEXT] [--province-name TEXT]\n"
    "                                the weather of this place: its id in the weather service,\n"
    "                                north and east positive, a zone such as Europe/Berlin\n"
    "  place show [--json]           which place it is\n",
    run};

}  // namespace zephyrix
