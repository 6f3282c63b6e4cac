#include "PlaceCard.h"

#include <cmath>

#include <QVBoxLayout>

#include "SkyOfDay.h"
#include "foundation/Clock.h"
#include "foundation/DateFormatter.h"
#include "foundation/Localized.h"
#include "foundation/NumberFormatter.h"
#include "meteo/MeteoMapping.h"

namespace zephyrix {

namespace {

/// "69.6489° N"; the letters are those of the wind's directions.
QString degreesText(double degrees, QStringView positive, QStringView negative) {
    NumberFormatter formatter;
    formatter.setMinimumFractionDigits(2);
    formatter.setMaximumFractionDigits(4);
    return QStringLiteral("%1° %2").arg(formatter.stringFromNumber(std::fabs(degrees)),
                                        localized(degrees < 0.0 ? negative : positive));
}

QString timeText(Instant instant, const QTimeZone& zone) {
    DateFormatter formatter;
    formatter.setTimeStyle(DateFormatter::Style::Short);
    formatter.setTimeZone(zone);
    return formatter.stringFromDate(instant);
}

QString sunText(const SunPassage& sun, const QTimeZone& zone) {
    if (!sun.rise && !sun.set)
        return localized(sun.staysAbove ? u"does not set (polar day)"
                                        : u"does not rise (polar night)");
    QStringList parts;
    if (sun.rise)
        parts << localized(u"rises %1").arg(timeText(*sun.rise, zone));
    if (sun.set)
        parts << localized(u"sets %1").arg(timeText(*sun.set, zone));
    return parts.join(QLatin1String(", "));
}

}  // namespace

PlaceCard::PlaceCard(QWidget* parent)
    : Card(parent),
      name_(textLabel(this, 1.35, true)),
      area_(textLabel(this, 1.0, false)),
      rows_(new QFormLayout) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(2);
    column->addWidget(name_);
    column->addWidget(area_);
    column->addSpacing(8);
    rows_->setHorizontalSpacing(16);
    rows_->setVerticalSpacing(4);
    column->addLayout(rows_);
    column->addStretch(1);
    coordinates_ = addRow(u"Coordinates");
    time_ = addRow(u"Local time");
    sun_ = addRow(u"Sun");
    moon_ = addRow(u"Moon");
}

QLabel* PlaceCard::addRow(QStringView caption) {
    auto* const value = textLabel(this, 1.0, false);
    rows_->addRow(localized(caption), value);
    return value;
}

void PlaceCard::setPlace(const std::optional<LocationResult>& place) {
    place_ = place && place->checkValidity() && std::isfinite(place->latitude()->doubleValue()) &&
                     std::isfinite(place->longitude()->doubleValue())
                 ? place
                 : std::nullopt;
    name_->setText(place_ ? *place_->name() : localized(u"No place is chosen"));
    QStringList area;
    if (place_)
        for (const auto& part : {place_->provinceName(), place_->countryName()})
            if (part && part != place_->name())
                area << *part;
    area_->setText(area.join(QLatin1String(", ")));
    area_->setVisible(!area.isEmpty());
    for (int row = 0; row < rows_->rowCount(); ++row)
        for (const auto role : {QFormLayout::LabelRole, QFormLayout::FieldRole})
            rows_->itemAt(row, role)->widget()->setVisible(place_.has_value());
    showNow();
}

void PlaceCard::showNow() {
    if (!place_)
        return;
    const QTimeZone zone =
        place_->objTimeZone().isValid() ? place_->objTimeZone() : defaultTimeZone();
    const Coordinate where{.latitude = place_->latitude()->doubleValue(),
                           .longitude = place_->longitude()->doubleValue()};
    const Instant now = Clock::now();
    const SkyOfDay sky = skyOfDay(now, {.name = {}, .coordinate = where, .zone = zone});
    coordinates_->setText(degreesText(where.latitude, u"N", u"S") + QStringLiteral(", ") +
                          degreesText(where.longitude, u"E", u"W"));
    time_->setText(
        QStringLiteral("%1  (%2)").arg(timeText(now, zone), QString::fromLatin1(zone.id())));
    sun_->setText(sunText(sky.sun, zone));
    moon_->setText(localized(sky.moonName));
}

}  // namespace zephyrix
