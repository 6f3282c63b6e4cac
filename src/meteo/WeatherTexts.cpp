// The weather in words: MeteoMapping's lookups in the text database.
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <QLatin1String>

#include "MeteoDB.h"
#include "MeteoMapping.h"
#include "astro/SunCalculations.h"
#include "foundation/Log.h"
#include "foundation/TimeZone.h"

namespace zephyrix {

namespace {

struct TextSet {
    QLatin1String language;
    int byDay;  // id_map of the sentences by day; by night its lowest bit is set
};

constexpr int nightBit = 1;
constexpr int englishByDay = 2910;

constexpr std::array textSets{
    TextSet{QLatin1String("de"), 2900}, TextSet{QLatin1String("en"), englishByDay},
    TextSet{QLatin1String("pl"), 2920}, TextSet{QLatin1String("nl"), 2930},
    TextSet{QLatin1String("fr"), 2940}, TextSet{QLatin1String("es"), 2950},
    TextSet{QLatin1String("sv"), 2960}, TextSet{QLatin1String("it"), 2970},
    // Not 2980: the number is deliberate, the database keeps Russian under it.
    TextSet{QLatin1String("ru"), 2986}};

/// English for every language that is not in the table letter by letter.
int textSetFor(const QString& language, bool daylight) {
    const auto* const found =
        std::find_if(textSets.begin(), textSets.end(),
                     [&](const TextSet& set) { return language == set.language; });
    const int byDay = found == textSets.end() ? englishByDay : found->byDay;
    return daylight ? byDay : byDay | nightBit;
}

/// The one prepared lookup of the process; null until it was first prepared.
sqlite3_stmt*& cachedStatement() {
    static sqlite3_stmt* statement = nullptr;
    return statement;
}

/// What ships with the program is not all there: told once, though each lookup tries again.
void tellOnce(const QString& problem) {
    static bool told = false;
    if (!std::exchange(told, true))
        logLine(QStringLiteral("the weather has no words: meteoDB.sqlite: %1").arg(problem));
}

/// Prepared at the first lookup that can; null while there is no usable database.
sqlite3_stmt* lookupStatement() {
    sqlite3_stmt*& statement = cachedStatement();
    sqlite3* const connection = MeteoDB::sharedManager().dbConnection();
    if (statement || !connection)
        return statement;
    if (sqlite3_prepare_v2(
            connection, "SELECT * from t_list_mapping where id_map =? and n = ? and ww = ? limit 1",
            -1, &statement, nullptr) != SQLITE_OK)
        tellOnce(QString::fromUtf8(sqlite3_errmsg(connection)));
    return statement;
}

std::int64_t codeOf(const std::optional<Number>& number) {
    return number ? number->integerValue() : 0;
}

double degrees(const std::optional<Number>& coordinate) {
    return coordinate ? coordinate->doubleValue() : 0.0;
}

QString textOfRow(sqlite3_stmt* row) {
    constexpr int textColumn = 3;
    const unsigned char* const text = sqlite3_column_text(row, textColumn);
    if (!text)
        return QStringLiteral("");
    return QString::fromUtf8(reinterpret_cast<const char*>(text),
                             sqlite3_column_bytes(row, textColumn));
}

}  // namespace

std::optional<QString> MeteoMapping::stringForN(const std::optional<Number>& n,
                                                const std::optional<Number>& ww,
                                                const QString& language, bool daylight) {
    sqlite3_stmt* const statement = lookupStatement();
    if (!statement)
        return std::nullopt;
    sqlite3_bind_int(statement, 1, textSetFor(language, daylight));
    sqlite3_bind_int64(statement, 2, codeOf(n));
    sqlite3_bind_int64(statement, 3, codeOf(ww));
    std::optional<QString> text;
    if (sqlite3_step(statement) == SQLITE_ROW)
        text = textOfRow(statement);
    sqlite3_reset(statement);
    return text;
}

std::optional<QString> MeteoMapping::stringForN(const std::optional<Number>& n,
                                                const std::optional<Number>& ww,
                                                const QString& language, Instant date,
                                                const Location& cityObject) {
    SunCalculations sun;
    const bool daylight =
        sun.isDayLightAtDate(date, degrees(cityObject.longitude()), degrees(cityObject.latitude()),
                             timeZoneWithName(cityObject.timezone().value_or(QString())));
    return stringForN(n, ww, language, daylight);
}

std::optional<QString> MeteoMapping::capitalizeFirst(const QString& text) {
    if (text.isEmpty())
        return std::nullopt;
    return text.first(1).toUpper() + text.sliced(1);
}

void MeteoMapping::dropTextLookup() {
    sqlite3_finalize(cachedStatement());
    cachedStatement() = nullptr;
}

}  // namespace zephyrix
