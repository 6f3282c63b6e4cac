#include "BarFormat.h"

#include <algorithm>
#include <array>
#include <optional>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "BarSymbol.h"
#include "RowReport.h"
#include "cells/ObsCell.h"
#include "foundation/Clock.h"
#include "foundation/TimeZone.h"
#include "meteo/MeteoMapping.h"

namespace zephyrix {

namespace {

const QString usualFields = QStringLiteral("{symbol} {temperature}");
constexpr std::int64_t missingTemperature = -9999;

struct Facts {
    QJsonObject row;
    BarSymbol symbol;
    QString source;
    QString age{};
    QString high{};  // of today
    QString low{};
};

QString text(const QJsonObject& object, const char* key) {
    return object.value(QLatin1String(key)).toString();
}

QString inUnits(const Facts& facts, const char* quantity, const char* value) {
    const QJsonObject object = facts.row.value(QLatin1String(quantity)).toObject();
    const QString number = text(object, value);
    return number.isEmpty() ? QString() : number + u' ' + text(object, "unit").trimmed();
}

QString sectorOf(const Facts& facts) {
    const QJsonObject wind = facts.row.value(QLatin1String("wind")).toObject();
    const QJsonValue degrees = wind.value(QLatin1String("direction"));
    constexpr std::int64_t anySpeed = 1;  // other than calm
    return degrees.isDouble() ? MeteoMapping::windStringForSector(MeteoMapping::mapWindToSector(
                                    static_cast<std::int64_t>(degrees.toDouble()), anySpeed))
                              : QString();
}

struct Field {
    const char* name;
    QString (*value)(const Facts& facts);
};

constexpr std::array fields{
    Field{"symbol", [](const Facts& facts) { return facts.symbol.glyph; }},
    Field{"temperature", [](const Facts& facts) { return text(facts.row, "temperature"); }},
    Field{"high", [](const Facts& facts) { return facts.high; }},
    Field{"low", [](const Facts& facts) { return facts.low; }},
    Field{"text", [](const Facts& facts) { return text(facts.row, "weather"); }},
    Field{"place", [](const Facts& facts) { return text(facts.row, "place"); }},
    Field{"time", [](const Facts& facts) { return text(facts.row, "time"); }},
    Field{"wind", [](const Facts& facts) { return inUnits(facts, "wind", "speed"); }},
    Field{"direction", sectorOf},
    Field{"precipitation",
          [](const Facts& facts) { return inUnits(facts, "precipitation", "amount"); }},
    Field{"pressure", [](const Facts& facts) { return inUnits(facts, "pressure", "value"); }},
    Field{"age", [](const Facts& facts) { return facts.age; }},
    Field{"source", [](const Facts& facts) { return facts.source; }},
};

const Field& fieldNamed(const QString& name) {
    const auto* const found = std::ranges::find_if(
        fields, [&](const Field& field) { return name == QLatin1String(field.name); });
    if (found != fields.end())
        return *found;
    QStringList names;
    for (const Field& field : fields)
        names << QStringLiteral("{%1}").arg(QLatin1String(field.name));
    throw BarFormat::Error(QStringLiteral("--format has no field \"{%1}\", only %2")
                               .arg(name, names.join(QLatin1Char(' '))));
}

/// The format with each field replaced by what `value` gives for it, and doubled braces by one.
template <class Value>
QString filled(const QString& format, const Value& value) {
    QString line;
    for (qsizetype at = 0; at < format.size(); ++at) {
        const QChar character = format.at(at);
        const bool brace = character == u'{' || character == u'}';
        if (!brace) {
            line += character;
            continue;
        }
        if (at + 1 < format.size() && format.at(at + 1) == character) {
            line += format.at(++at);
            continue;
        }
        const qsizetype end = character == u'{' ? format.indexOf(u'}', at) : -1;
        if (end < 0)
            throw BarFormat::Error(
                QStringLiteral("--format has a single \"%1\" in \"%2\"; write it twice to show it")
                    .arg(character)
                    .arg(format));
        line += value(fieldNamed(format.mid(at + 1, end - at - 1)));
        at = end;
    }
    return line;
}

QString oneLine(QString text) {
    return text.replace(u'\n', u' ').replace(u'\r', u' ').trimmed();
}

/// What the forecast says of the day that it is at the place; nothing where it says nothing.
QVariantMap forecastOfToday(const WeatherData& document, const LocationResult& place) {
    const QTimeZone zone = place.objTimeZone();
    const QDateTime now =
        Clock::now().toDateTime().toTimeZone(zone.isValid() ? zone : defaultTimeZone());
    const QString today = now.date().toString(Qt::ISODate);
    const QVariantList days = document.forecast.value_or(QVariantList());
    const auto found = std::ranges::find_if(days, [&](const QVariant& day) {
        return day.toMap().value(QStringLiteral("date")).toString() == today;
    });
    return found == days.end() ? QVariantMap() : found->toMap();
}

/// "14°C" of a feed's temperature; empty for a missing one.
QString temperatureText(const QVariant& celsius, UnitCode unit) {
    const auto number = Number::fromVariant(celsius);
    return number && number->integerValue() != missingTemperature
               ? MeteoMapping::formattedTempString(number, unit)
               : QString();
}

Facts factsOf(TodayViewController& controller, const RowReport& report) {
    const QJsonValue row = report.json().value(QLatin1String("rows")).toArray().first();
    const bool observed = row[QLatin1String("kind")] == QLatin1String("observation");
    const auto& document = controller.lastWeatherData();
    const bool hasSymbol = observed && document && document->obs && document->obs->symbol;
    Facts facts{.row = observed ? row.toObject() : QJsonObject(),
                .symbol = barSymbol(hasSymbol ? *document->obs->symbol : Number(0)),
                .source = RowReport::source(controller)};
    if (!observed || !document || !document->obs || !controller.location())
        return facts;
    const QVariantMap today = forecastOfToday(*document, *controller.location());
    const UnitCode unit = controller.sharedDefaults().integer(QStringLiteral("temperature"));
    facts.high = temperatureText(today.value(QStringLiteral("tx")), unit);
    facts.low = temperatureText(today.value(QStringLiteral("tn")), unit);
    facts.age = ObsCell::ageText(*document->obs);
    return facts;
}

/// What a style sheet can choose by.
QJsonArray classesOf(TodayViewController& controller, const Facts& facts) {
    const auto& document = controller.lastWeatherData();
    if (!controller.location())
        return {QStringLiteral("no-place")};
    if (!document || !document->obs)
        return {QStringLiteral("waiting")};
    QJsonArray classes{facts.symbol.kind};
    if (facts.symbol.isNight)
        classes.append(QStringLiteral("night"));
    if (ObsCell::shownAge(*document->obs))
        classes.append(QStringLiteral("old"));
    return classes;
}

/// Its texts are markup, in which "<0.1 mm" would be a mistake.
QString waybarLine(const QString& shown, const RowReport& report, const QJsonArray& classes,
                   const QString& kind) {
    const QJsonObject object{
        {QStringLiteral("text"), shown.toHtmlEscaped()},
        {QStringLiteral("alt"), kind},
        {QStringLiteral("tooltip"), report.text().trimmed().toHtmlEscaped()},
        {QStringLiteral("class"), classes},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

}  // namespace

BarFormat::BarFormat(const QString& format)
    : kind_(format == QLatin1String("waybar")    ? Kind::Waybar
            : format == QLatin1String("polybar") ? Kind::Polybar
                                                 : Kind::Fields),
      fields_(kind_ == Kind::Fields ? format : usualFields) {
    static_cast<void>(filled(fields_, [](const Field&) { return QString(); }));
}

QString BarFormat::line(TodayViewController& controller) const {
    const RowReport report(controller);
    const Facts facts = factsOf(controller, report);
    QString shown =
        oneLine(filled(fields_, [&](const Field& field) { return field.value(facts); }));
    switch (kind_) {
        case Kind::Waybar:
            return waybarLine(shown, report, classesOf(controller, facts), facts.symbol.kind);
        case Kind::Polybar:
            return shown.replace(QStringLiteral("%{"), QStringLiteral("% {"));  // no tag of its own
        case Kind::Fields:
            break;
    }
    return shown;
}

}  // namespace zephyrix
