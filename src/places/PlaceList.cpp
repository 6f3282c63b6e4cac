#include "PlaceList.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "PlaceQuery.h"
#include "foundation/Angle.h"
#include "foundation/Bundle.h"

namespace zephyrix {

namespace {

constexpr qsizetype mostCharacters = 100;
constexpr double earthRadius = 6371.0;  // kilometres
constexpr double highSeas = 300.0;      // kilometres

// Half the heights of the belts, in degrees, in which the nearest place is looked for; the last one
// is the whole earth.
constexpr std::array beltHeights{1.0, 5.0, 180.0};

NameFolding foldingOf(const SqliteFile& file) {
    QHash<QString, QString> letters;
    SqliteStatement rows = file.statement("SELECT letters, plain FROM folding");
    while (rows.step())
        letters.insert(rows.text(0), rows.text(1));
    return NameFolding(letters);
}

/// Along the great circle, by the haversine formula.
double kilometresBetween(const Coordinate& a, const Coordinate& b) {
    const double north = std::sin(deg2rad(a.latitude - b.latitude) / 2.0);
    const double east = std::sin(deg2rad(a.longitude - b.longitude) / 2.0);
    const double square =
        north * north + std::cos(deg2rad(a.latitude)) * std::cos(deg2rad(b.latitude)) * east * east;
    return earthRadius * 2.0 * std::asin(std::min(1.0, std::sqrt(square)));
}

QString zoneOfLongitude(double degreesEast) {
    const auto hours = std::lround(degreesEast / 15.0);
    // The signs of these zones are those of the way back to Greenwich.
    return hours == 0 ? QStringLiteral("Etc/GMT")
                      : QStringLiteral("Etc/GMT%1%2")
                            .arg(hours > 0 ? QLatin1Char('-') : QLatin1Char('+'))
                            .arg(std::abs(hours));
}

/// Adds the places of a statement's rows that are not there yet, until there are enough.
void add(SqliteStatement& rows, std::vector<std::int64_t>& places, std::size_t most) {
    while (places.size() < most && rows.step())
        if (std::find(places.begin(), places.end(), rows.integer(0)) == places.end())
            places.push_back(rows.integer(0));
    rows.reset();
}

}  // namespace

PlaceList::PlaceList(const QString& language)
    : PlaceList(Bundle::main().pathForResource(QStringLiteral("places.sqlite")), language) {}

PlaceList::PlaceList(const QString& file, const QString& language)
    : file_(file),
      language_(language.toUtf8()),
      folding_(foldingOf(file_)),
      exactly_(file_.statement("SELECT place FROM spelling WHERE folded = ? ORDER BY position")),
      matching_(file_.statement("SELECT place FROM word JOIN spelling ON position = word.rowid"
                                " WHERE word MATCH ? ORDER BY word.rowid")),
      details_(file_.statement(
          "SELECT coalesce(translation.name, place.name), place.country, country.name, province,"
          " latitude, longitude, zone, inhabitants FROM place"
          " LEFT JOIN translation ON translation.place = id AND translation.language = ?2"
          " LEFT JOIN country ON code = place.country AND country.language = ?2 WHERE id = ?1")),
      between_(file_.statement("SELECT id, latitude, longitude FROM place"
                               " WHERE latitude BETWEEN ? AND ?")) {}

std::vector<ListedPlace> PlaceList::search(const QString& text, std::size_t most) {
    std::vector<ListedPlace> found;
    const PlaceQuery query(folding_.folded(text.left(mostCharacters)));
    if (query.isEmpty())
        return found;
    std::vector<std::int64_t> uids;
    exactly_.bind(1, query.whole());
    add(exactly_, uids, most);
    for (const QByteArray& expression : query.expressions()) {
        matching_.bind(1, expression);
        add(matching_, uids, most);
    }
    for (const std::int64_t uid : uids)
        if (auto known = place(uid))
            found.push_back(*std::move(known));
    return found;
}

std::optional<ListedPlace> PlaceList::place(std::int64_t uid) {
    details_.bind(1, uid);
    details_.bind(2, language_);
    std::optional<ListedPlace> place;
    if (details_.step())
        place =
            ListedPlace{.uid = uid,
                        .name = details_.text(0),
                        .coordinate = {.latitude = details_.real(4), .longitude = details_.real(5)},
                        .zone = details_.text(6),
                        .countryCode = details_.text(1),
                        .country = details_.text(2),
                        .province = details_.text(3),
                        .inhabitants = details_.integer(7)};
    details_.reset();
    return place;
}

QString PlaceList::countryName(const QString& code) const {
    SqliteStatement name =
        file_.statement("SELECT name FROM country WHERE code = ? AND language = ?");
    name.bind(1, code.toUtf8());
    name.bind(2, language_);
    return name.step() ? name.text(0) : QString();
}

std::optional<ListedPlace> PlaceList::nearest(const Coordinate& coordinate) {
    std::int64_t uid = 0;
    double distance = earthRadius * 4.0;  // farther than any
    for (const double height : beltHeights) {
        between_.bind(1, coordinate.latitude - height);
        between_.bind(2, coordinate.latitude + height);
        while (between_.step()) {
            const double kilometres = kilometresBetween(
                coordinate, {.latitude = between_.real(1), .longitude = between_.real(2)});
            if (kilometres < distance) {
                distance = kilometres;
                uid = between_.integer(0);
            }
        }
        if (distance <= earthRadius * deg2rad(height))  // else a nearer one may be outside
            break;
    }
    return place(uid);
}

QString PlaceList::zoneAt(const Coordinate& coordinate) {
    const auto near = nearest(coordinate);
    const bool isAshore = near && kilometresBetween(coordinate, near->coordinate) <= highSeas;
    return isAshore ? near->zone : zoneOfLongitude(coordinate.longitude);
}

}  // namespace zephyrix
