#include "RowReport.h"

#include <QJsonArray>
#include <QStringList>

#include "cells/ForecastCell.h"
#include "cells/ObsCell.h"
#include "foundation/Localized.h"

namespace zephyrix {

namespace {

QString textOf(const QLabel* label) {
    return label == nullptr ? QString() : label->text();
}

QJsonObject windIn(const QKWindpfeil* wind) {
    if (wind == nullptr)
        return {};
    QJsonObject report{{QStringLiteral("speed"), textOf(wind->windSpeedLabel())},
                       {QStringLiteral("unit"), textOf(wind->windSpeedUnitsLabel())}};
    const auto direction = wind->direction();
    if (direction && direction->doubleValue() >= 0.0)  // a missing one is -9999
        report.insert(QStringLiteral("direction"), direction->doubleValue());
    return report;
}

QJsonObject observationIn(const ObsCell& cell) {
    return {{QStringLiteral("kind"), QStringLiteral("observation")},
            {QStringLiteral("place"), textOf(cell.titleLabel())},
            {QStringLiteral("time"), textOf(cell.dateLabel())},
            {QStringLiteral("temperature"), textOf(cell.detailLabel1())},
            {QStringLiteral("weather"), textOf(cell.detailLabel2())},
            {QStringLiteral("wind"), windIn(cell.windContainer())},
            {QStringLiteral("precipitation"),
             QJsonObject{{QStringLiteral("amount"), textOf(cell.rrr())},
                         {QStringLiteral("unit"), textOf(cell.rrrUnits())},
                         {QStringLiteral("period"), textOf(cell.rrrhLabel())}}},
            {QStringLiteral("pressure"),
             QJsonObject{{QStringLiteral("value"), textOf(cell.ppp())},
                         {QStringLiteral("unit"), textOf(cell.pppUnits())}}},
            {QStringLiteral("spoken"), cell.spokenText()}};
}

QJsonObject forecastIn(const ForecastCell& cell) {
    QJsonArray days;
    if (cell.container() != nullptr)
        for (const ForecastDayView* day : cell.container()->findChildren<ForecastDayView*>())
            days.append(QJsonObject{{QStringLiteral("day"), textOf(day->dayLabel())},
                                    {QStringLiteral("high"), textOf(day->tx())},
                                    {QStringLiteral("low"), textOf(day->tn())}});
    return {{QStringLiteral("kind"), QStringLiteral("forecast")}, {QStringLiteral("days"), days}};
}

QJsonObject rowIn(const TableCell& cell) {
    if (const auto* observation = qobject_cast<const ObsCell*>(&cell))
        return observationIn(*observation);
    if (const auto* forecast = qobject_cast<const ForecastCell*>(&cell))
        return forecastIn(*forecast);
    return {{QStringLiteral("kind"), QStringLiteral("message")},
            {QStringLiteral("text"), textOf(cell.textLabel())}};
}

/// The words that are there, after a heading; nothing where the first of them is not.
QStringList line(const QString& heading, const QStringList& words) {
    if (words.first().isEmpty())
        return {};
    QStringList parts = QStringList(heading) + words;
    parts.removeAll(QString());
    return {parts.join(QLatin1Char(' '))};
}

QStringList observationLines(const QJsonObject& row) {
    const auto text = [](const QJsonObject& object, const char* key) {
        return object.value(QLatin1String(key)).toString();
    };
    const QJsonObject wind = row.value(QLatin1String("wind")).toObject();
    const QJsonObject rain = row.value(QLatin1String("precipitation")).toObject();
    const QJsonObject pressure = row.value(QLatin1String("pressure")).toObject();
    const QJsonValue direction = wind.value(QLatin1String("direction"));
    const QString from =
        direction.isDouble() ? QStringLiteral("%1°").arg(direction.toDouble()) : QString();
    return line({}, {text(row, "place"), text(row, "time")}) +
           line({}, {text(row, "temperature"), text(row, "weather")}) +
           line(localized(u"Wind"), {text(wind, "speed"), text(wind, "unit"), from}) +
           line(localized(u"Precipitation"),
                {text(rain, "amount"), text(rain, "unit"), text(rain, "period")}) +
           line(localized(u"Pressure"), {text(pressure, "value"), text(pressure, "unit")});
}

QStringList forecastLines(const QJsonObject& row) {
    QStringList lines;
    for (const QJsonValue day : row.value(QLatin1String("days")).toArray())
        lines << QStringLiteral("%1  %2 / %3")
                     .arg(day[QLatin1String("day")].toString(), -4)
                     .arg(day[QLatin1String("high")].toString(),
                          day[QLatin1String("low")].toString());
    return lines;
}

QStringList linesFor(const QJsonObject& row) {
    const QString kind = row.value(QLatin1String("kind")).toString();
    if (kind == QLatin1String("observation"))
        return observationLines(row);
    if (kind == QLatin1String("forecast"))
        return forecastLines(row);
    return {row.value(QLatin1String("text")).toString()};
}

/// A text that the feed sent with the observation; empty where it did not.
QString toldBy(const TodayViewController& controller, const char* key) {
    const auto& document = controller.lastWeatherData();
    return document && document->obs ? document->obs->asDict().value(QLatin1String(key)).toString()
                                     : QString();
}

}  // namespace

RowReport::RowReport(TodayViewController& controller) {
    QJsonArray rows;
    const int count = controller.numberOfRowsInSection(0);
    for (int row = 0; row < count; ++row)
        if (const TableCell* cell = controller.tableView()->cellForRow({row, 0}))
            rows.append(rowIn(*cell));
    report_ = {{QStringLiteral("expanded"), controller.showingAll()},
               {QStringLiteral("source"), source(controller)},
               {QStringLiteral("licence"), licence(controller)},
               {QStringLiteral("fetched"), toldBy(controller, "fetched")},
               {QStringLiteral("rows"), rows}};
}

QString RowReport::text() const {
    QStringList lines;
    for (const QJsonValue row : report_.value(QLatin1String("rows")).toArray())
        lines << linesFor(row.toObject());
    const QString source = report_.value(QLatin1String("source")).toString();
    if (!source.isEmpty())
        lines << QStringLiteral("(%1)").arg(source);
    const QString licence = report_.value(QLatin1String("licence")).toString();
    if (!licence.isEmpty())
        lines << licence;
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString RowReport::source(const TodayViewController& controller) {
    const QString name = toldBy(controller, "source");
    return name == QLatin1String("demonstration") ? localized(u"Demonstration weather") : name;
}

QString RowReport::licence(const TodayViewController& controller) {
    return toldBy(controller, "licence");
}

}  // namespace zephyrix
