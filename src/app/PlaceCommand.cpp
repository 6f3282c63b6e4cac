#include "PlaceCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "PlaceArguments.h"
#include "SharedSettings.h"
#include "foundation/Bundle.h"
#include "places/PlaceList.h"

namespace zephyrix {

namespace {

const QString locationKey = QStringLiteral("location");

constexpr std::size_t mostFound = 20;

void store(const LocationResult& place) {
    const auto settings = openSharedSettings();
    settings->set(locationKey, place.asDict());
    save(*settings);
}

QVariantMap storedDictionary() {
    const auto dictionary = openSharedSettings()->dictionary(locationKey);
    if (!dictionary)
        throw CommandError::failure(
            QStringLiteral("no place is chosen; try \"zephyrix place search\""));
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

/// uid and name, as "place set" takes the one and a person knows the other.
void printFound(QTextStream& out, const std::vector<ListedPlace>& places) {
    for (const ListedPlace& place : places) {
        out << QString::number(place.uid).leftJustified(10) << place.name;
        if (const QString area = areaOf(place); !area.isEmpty())
            out << ", " << area;
        out << '\n';
    }
}

void printFoundJson(QTextStream& out, const std::vector<ListedPlace>& places) {
    QJsonArray array;
    for (const ListedPlace& place : places)
        array << QJsonObject::fromVariantMap(locationOf(place).asDict());
    out << QJsonDocument(array).toJson();
}

void search(QStringList words, QTextStream& out) {
    const bool asJson = words.removeAll(QStringLiteral("--json")) > 0;
    if (words.isEmpty())
        throw CommandError::usage(QStringLiteral("place search takes a name"));
    const QString text = words.join(QLatin1Char(' '));
    const auto found =
        PlaceList(Bundle::main().preferredLocalizations().first()).search(text, mostFound);
    if (found.empty())
        throw CommandError::failure(
            QStringLiteral("the list has no place \"%1\"; for one that is in no list try"
                           " \"zephyrix place set --lat DEGREES --lon DEGREES --name TEXT\"")
                .arg(text));
    return asJson ? printFoundJson(out, found) : printFound(out, found);
}

void run(const QStringList& arguments, QTextStream& out) {
    const QString verb = arguments.value(0);
    if (verb == QLatin1String("show"))
        return show(arguments.mid(1), out);
    if (verb == QLatin1String("search"))
        return search(arguments.mid(1), out);
    if (verb == QLatin1String("set"))
        store(placeFromArguments(arguments.mid(1)));
    else if (verb == QLatin1String("default") && arguments.size() == 1)
        store(LocationResult::defaultSearchResult());
    else
        throw CommandError::usage(
            QStringLiteral("place must be followed by search, set, default or show"));
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
    "  place search TEXT [--json]    the places of this name, with their uids; without accents "
    "and\n"
    "                                in any of nine languages, with a country or a part of it\n"
    "                                where there are several: \"paris texas\"\n"
    "                                Places: GeoNames (geonames.org), CC BY 4.0\n"
    "  place set UID                 the weather of this place of the list\n"
    "  place set --lat DEGREES --lon DEGREES --name TEXT [--zone ZONE] [--uid N]\n"
    "            [--country-name TEXT] [--province-name TEXT]\n"
    "                                the weather of any place: north and east positive, a zone\n"
    "                                such as Europe/Berlin, its id if the feed has one of its own\n"
    "  place default                 the weather of Berlin\n"
    "  place show [--json]           which place it is\n",
    run};

}  // namespace zephyrix
