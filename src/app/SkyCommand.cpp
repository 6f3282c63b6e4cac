#include "SkyCommand.h"

#include <cmath>

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>

#include "SharedSettings.h"
#include "SkyOfDay.h"
#include "foundation/Clock.h"
#include "foundation/GregorianCalendar.h"
#include "model/LocationResult.h"

namespace zephyrix {

namespace {

const QString dateFormat = QStringLiteral("yyyy-MM-dd");

/// What was asked for.
struct SkyQuestion {
    SkyPlace place;
    Instant date;
    bool asJson;
};

double degreesFrom(const QString& text, const char* what, double most) {
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !(std::fabs(value) <= most))
        throw CommandError::usage(
            QStringLiteral("--place: the %1 \"%2\" is no number from -%3 to %3")
                .arg(QLatin1String(what), text)
                .arg(most));
    return value;
}

/// From "LAT,LON" or "LAT,LON,ZONE".
SkyPlace placeFrom(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() < 2 || parts.size() > 3)
        throw CommandError::usage(
            QStringLiteral("--place: \"%1\" is not of the form LAT,LON,ZONE").arg(text));
    const QTimeZone zone = parts.size() == 3 ? timeZoneWithName(parts[2]) : defaultTimeZone();
    if (!zone.isValid())
        throw CommandError::usage(
            QStringLiteral("--place: \"%1\" is no time zone; a zone is named like Europe/Berlin")
                .arg(parts[2]));
    return {.name = QStringLiteral("%1, %2").arg(parts[0], parts[1]),
            .coordinate = {.latitude = degreesFrom(parts[0], "latitude", 90.0),
                           .longitude = degreesFrom(parts[1], "longitude", 180.0)},
            .zone = zone};
}

bool isUsable(const LocationResult& location) {
    return location.checkValidity() && std::isfinite(location.latitude()->doubleValue()) &&
           std::isfinite(location.longitude()->doubleValue());
}

/// The place of the panel, or the default one while none is chosen.
SkyPlace panelPlace() {
    const auto dictionary = openSharedSettings()->dictionary(QStringLiteral("location"));
    LocationResult location(dictionary.value_or(QVariantMap()));
    if (!isUsable(location))
        location = LocationResult::defaultSearchResult();
    const QTimeZone zone = location.objTimeZone();
    return {.name = *location.name(),
            .coordinate = {.latitude = location.latitude()->doubleValue(),
                           .longitude = location.longitude()->doubleValue()},
            .zone = zone.isValid() ? zone : defaultTimeZone()};
}

/// Noon of the day in the place's zone.
Instant dateFrom(const QString& text, const QTimeZone& zone) {
    const QDate date = QDate::fromString(text, dateFormat);
    if (!date.isValid())
        throw CommandError::usage(
            QStringLiteral("--date: \"%1\" is no day like 2024-06-21").arg(text));
    return GregorianCalendar(zone).instant(
        {.year = date.year(), .month = date.month(), .day = date.day(), .hour = 12});
}

SkyQuestion questionFrom(const QStringList& arguments) {
    const QString date = QStringLiteral("date");
    const QString place = QStringLiteral("place");
    const QString json = QStringLiteral("json");
    QCommandLineParser parser;
    parser.addOption({date, {}, QStringLiteral("day")});
    parser.addOption({place, {}, QStringLiteral("place")});
    parser.addOption(QCommandLineOption(json));
    if (!parser.parse(QStringList(QString()) + arguments))
        throw CommandError::usage(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        throw CommandError::usage(QStringLiteral("what does \"%1\" mean?")
                                      .arg(parser.positionalArguments().constFirst()));
    SkyQuestion question{
        .place = parser.isSet(place) ? placeFrom(parser.value(place)) : panelPlace(),
        .date = Clock::now(),
        .asJson = parser.isSet(json)};
    if (parser.isSet(date))
        question.date = dateFrom(parser.value(date), question.place.zone);
    return question;
}

QDateTime wallTime(Instant instant, const QTimeZone& zone) {
    return instant.toDateTime().toTimeZone(zone);
}

QString clockText(const std::optional<Instant>& instant, const QTimeZone& zone) {
    return instant ? wallTime(*instant, zone).toString(QStringLiteral("HH:mm"))
                   : QStringLiteral("none ");
}

QString lengthText(double seconds) {
    const auto minutes = std::lround(seconds / 60.0);
    return QStringLiteral("%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
}

void printPassage(QTextStream& out, const char* label, const SunPassage& passage,
                  const QTimeZone& zone) {
    out << "  " << QString::fromLatin1(label).leftJustified(23);
    if (passage.rise || passage.set)
        out << clockText(passage.rise, zone) << "  " << clockText(passage.set, zone) << '\n';
    else
        out << (passage.staysAbove ? "none, brighter all day\n" : "none, darker all day\n");
}

void printText(QTextStream& out, const SkyQuestion& question, const SkyOfDay& sky) {
    const QTimeZone& zone = question.place.zone;
    out << question.place.name << ", " << wallTime(question.date, zone).toString(dateFormat) << " ("
        << zone.id() << ")\n";
    if (!sky.sun.rise && !sky.sun.set)
        out << (sky.sun.staysAbove ? "  polar day: the sun does not set\n"
                                   : "  polar night: the sun does not rise\n");
    else
        printPassage(out, "sunrise, sunset", sky.sun, zone);
    printPassage(out, "civil twilight", sky.civil, zone);
    printPassage(out, "nautical twilight", sky.nautical, zone);
    printPassage(out, "astronomical twilight", sky.astronomical, zone);
    out << "  day length             " << lengthText(sky.sun.length()) << '\n'
        << "  moon                   " << sky.moonName << " (phase "
        << QString::number(sky.moonPhase, 'f', 1) << " %, image " << sky.moonImage << ")\n";
}

QJsonValue isoText(const std::optional<Instant>& instant, const QTimeZone& zone) {
    if (!instant)
        return QJsonValue::Null;
    return wallTime(*instant, zone).toString(Qt::ISODate);
}

/// "times", or why there are none at this height.
QString stateText(const SunPassage& passage) {
    if (passage.rise || passage.set)
        return QStringLiteral("times");
    return passage.staysAbove ? QStringLiteral("above all day") : QStringLiteral("below all day");
}

QJsonObject jsonOf(const SunPassage& passage, const QTimeZone& zone) {
    return {{QStringLiteral("rise"), isoText(passage.rise, zone)},
            {QStringLiteral("set"), isoText(passage.set, zone)},
            {QStringLiteral("state"), stateText(passage)}};
}

void printJson(QTextStream& out, const SkyQuestion& question, const SkyOfDay& sky) {
    const QTimeZone& zone = question.place.zone;
    const QJsonObject object{
        {QStringLiteral("place"), question.place.name},
        {QStringLiteral("latitude"), question.place.coordinate.latitude},
        {QStringLiteral("longitude"), question.place.coordinate.longitude},
        {QStringLiteral("zone"), QString::fromLatin1(zone.id())},
        {QStringLiteral("date"), wallTime(question.date, zone).toString(dateFormat)},
        {QStringLiteral("sun"), jsonOf(sky.sun, zone)},
        {QStringLiteral("civilTwilight"), jsonOf(sky.civil, zone)},
        {QStringLiteral("nauticalTwilight"), jsonOf(sky.nautical, zone)},
        {QStringLiteral("astronomicalTwilight"), jsonOf(sky.astronomical, zone)},
        {QStringLiteral("dayLengthSeconds"), sky.sun.length()},
        {QStringLiteral("moon"), QJsonObject{{QStringLiteral("phase"), sky.moonPhase},
                                             {QStringLiteral("name"), sky.moonName},
                                             {QStringLiteral("image"), sky.moonImage}}},
    };
    out << QJsonDocument(object).toJson();
}

void run(const QStringList& arguments, QTextStream& out) {
    const SkyQuestion question = questionFrom(arguments);
    const SkyOfDay sky = skyOfDay(question.date, question.place);
    if (question.asJson)
        printJson(out, question, sky);
    else
        printText(out, question, sky);
}

}  // namespace

const Command skyCommand = {
    "sky",
    "  sky [--date YYYY-MM-DD] [--place LAT,LON[,ZONE]] [--json]\n"
    "                                sun, twilight and moon of a day, today if none is given, at\n"
    "                                the panel's place or another one\n",
    run};

}  // namespace zephyrix
