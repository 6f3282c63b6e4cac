#include "ForecastCell.h"

#include <algorithm>
#include <cmath>

#include <QStyle>

#include "SpokenWeather.h"
#include "foundation/Clock.h"
#include "foundation/FatalError.h"
#include "foundation/GregorianCalendar.h"
#include "foundation/Localized.h"
#include "foundation/Screen.h"
#include "foundation/TimeZone.h"
#include "meteo/MeteoMapping.h"

namespace zephyrix {

namespace {

constexpr int tagBits = 0xFF00;

std::optional<QString> textOf(const QVariant& value) {
    if (value.metaType().id() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

// Whole days from one wall-clock reading to another, truncated toward zero.
std::int64_t wholeDaysBetween(const CalendarFields& from, const CalendarFields& to) {
    const auto dateOf = [](const CalendarFields& fields) {
        return QDate(static_cast<int>(fields.year), static_cast<int>(fields.month),
                     static_cast<int>(fields.day));
    };
    const auto secondOfDay = [](const CalendarFields& fields) {
        return (fields.hour * 60 + fields.minute) * 60 + fields.second;
    };
    const std::int64_t days = dateOf(from).daysTo(dateOf(to));
    const std::int64_t rest = secondOfDay(to) - secondOfDay(from);
    if (days > 0 && rest < 0)
        return days - 1;
    if (days < 0 && rest > 0)
        return days + 1;
    return days;
}

QString temperatureOrDash(const QVariant& value, UnitCode unit) {
    const QString text = Number::fromVariant(value)
                             ? MeteoMapping::formattedTempString(Number::fromVariant(value), unit)
                             : QString();
    return text.isEmpty() ? QStringLiteral("-") : text;
}

}  // namespace

ForecastCell::ForecastCell(QWidget* parent)
    : TableCell(parent), nib_(QStringLiteral("ForecastDayView")) {}

void ForecastCell::connectOutlets() {
    TableCell::connectOutlets();
    setContainer(outlet<QWidget>(this, QStringLiteral("container")));
}

void ForecastCell::awakeFromNib() {
    TableCell::awakeFromNib();
    df_.setDateFormat(QStringLiteral("EEE"));
    spokenDf_.setDateFormat(QStringLiteral("EEEE"));
    dayStringParser_.setDateFormat(QStringLiteral("yyyy-MM-dd"));
    dayStringParser_.setLocale("en_US_POSIX");
}

void ForecastCell::setData(const std::optional<QVariantList>& data) {
    data_ = data;
    if (data_)
        data_ = filterForecastDayArray(*data_);
}

void ForecastCell::setHighlighted(bool highlighted, bool animated) {
    TableCell::setHighlighted(highlighted, animated);
}

void ForecastCell::setSelected(bool selected, bool animated) {
    TableCell::setSelected(selected, animated);
}

void ForecastCell::layoutSubviews() {
    TableCell::layoutSubviews();
    configureCell(data());
}

// Strictly wider: a screen of exactly 414 points has 4 columns, one of exactly 375 has 3.
int ForecastCell::dayCountForScreen() {
    const double width = Screen::main().bounds().width();
    if (width > 414.0)
        return 5;
    return width > 375.0 ? 4 : 3;
}

// The calendar is that of the device's zone of this moment, as the parser's dates are.
QVariantList ForecastCell::filterForecastDayArray(const QVariantList& days) {
    const GregorianCalendar calendar(defaultTimeZone());
    const CalendarFields now = calendar.fields(Clock::now());
    QVariantList kept;
    for (const QVariant& day : days) {
        const auto text = textOf(day.toMap().value(QStringLiteral("date")));
        const auto midnight = text ? dayStringParser_.dateFromString(*text) : std::nullopt;
        if (midnight && wholeDaysBetween(now, calendar.fields(*midnight)) >= 0)
            kept.append(day);
    }
    return kept;
}

QString ForecastCell::dayFromDateString(const std::optional<QString>& text) {
    const auto date = text ? dayStringParser_.dateFromString(*text) : std::nullopt;
    return date ? df_.stringFromDate(*date) : QString();
}

void ForecastCell::configureCell(const std::optional<QVariantList>& days) {
    if (!days || days->isEmpty() || !location())
        return;
    if (defaults() == nullptr)
        fatalError(QStringLiteral("a forecast row has no settings"));
    if (container() == nullptr)
        fatalError(QStringLiteral("a forecast row has no container for its columns"));
    const UnitCode unit = defaults()->integer(QStringLiteral("temperature"));
    const int dayCount = dayCountForScreen();
    const int filled = std::min(dayCount, static_cast<int>(days->size()));
    emptyContainer();
    spokenDays_.clear();
    QList<ForecastDayView*> columns;
    for (int index = 0; index < filled; ++index) {
        ForecastDayView* column = instantiateAndConfigureForecastDayViewForIndex(index, dayCount);
        if (column == nullptr)
            continue;
        showDay(days->at(index).toMap(), *column, unit);
        columns << column;
    }
    fitTemperatures(columns);
    qDeleteAll(spareColumns_);
    spareColumns_.clear();
}

// A column is most of the cost of a pass. Those of the pass before are as good as new ones, for all
// that they show is set again.
void ForecastCell::emptyContainer() {
    constexpr int noTag = 0;
    const auto views = container()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* view : views) {
        if (auto* const column = qobject_cast<ForecastDayView*>(view)) {
            column->setTag(noTag);
            spareColumns_.append(column);
        } else {
            delete view;
        }
    }
}

ForecastDayView* ForecastCell::newColumn() {
    if (!spareColumns_.isEmpty())
        return spareColumns_.takeFirst();
    return qobject_cast<ForecastDayView*>(nib_.instantiate(container()));
}

void ForecastCell::showDay(const QVariantMap& day, ForecastDayView& column, UnitCode unit) {
    const auto date = textOf(day.value(QStringLiteral("date")));
    column.dayLabel()->setText(dayFromDateString(date));
    const auto code = Number::fromVariant(day.value(QStringLiteral("symbol")));
    if (code && cs() == nullptr)
        fatalError(QStringLiteral("a forecast row has no symbol renderer"));
    column.symbol()->setImage(code ? cs()->symbolForCode(*code, column.symbol()->boundsSize())
                                   : QImage());
    const QVariant tn = day.value(QStringLiteral("tn"));
    const QVariant tx = day.value(QStringLiteral("tx"));
    column.tn()->setText(temperatureOrDash(tn, unit));
    column.tx()->setText(temperatureOrDash(tx, unit));

    const auto instant = date ? dayStringParser_.dateFromString(*date) : std::nullopt;
    const QString spoken = spokenDay(instant ? spokenDf_.stringFromDate(*instant) : QString(),
                                     Number::fromVariant(tx), Number::fromVariant(tn), unit);
    column.setAccessibleName(spoken);
    spokenDays_ << spoken;
}

// All columns have the size that the longest temperatures ask for: of two sizes beside each other
// the larger would look like the more important day.
void ForecastCell::fitTemperatures(const QList<ForecastDayView*>& columns) {
    double scale = 1.0;
    for (ForecastDayView* column : columns) {
        column->setTemperatureScale(1.0);
        scale = std::min(scale, column->fittingTemperatureScale());
    }
    for (ForecastDayView* column : columns)
        column->setTemperatureScale(scale);
}

ForecastDayView* ForecastCell::columnWithTag(int tag) const {
    const auto columns =
        container_->findChildren<ForecastDayView*>(QString(), Qt::FindDirectChildrenOnly);
    const auto found = std::ranges::find(columns, tag, &ForecastDayView::tag);
    return found == columns.end() ? nullptr : *found;
}

ForecastDayView* ForecastCell::instantiateAndConfigureForecastDayViewForIndex(int index,
                                                                              int dayCount) {
    const int tag = index | tagBits;
    ForecastDayView* column = columnWithTag(tag);
    if (column == nullptr) {
        column = newColumn();
        if (column == nullptr)
            return nullptr;
        column->setTag(tag);
        column->show();
    }
    const double width = static_cast<double>(container()->width()) / dayCount;
    const QRect frame(static_cast<int>(std::round(index * width)), 0,
                      static_cast<int>(std::round(width)), container()->height());
    // Days follow each other in the direction of reading.
    column->setGeometry(QStyle::visualRect(layoutDirection(), container()->rect(), frame));
    activateLayouts(column);
    column->setBackgroundColor(Qt::transparent);
    column->separator()->setHidden(index == dayCount - 1);
    return column;
}

QString ForecastCell::spokenText() const {
    if (!location_)
        return localized(u"no weather yet");
    const QString title = localized(u"forecast for %1").arg(location_->name().value_or(QString()));
    const QString days = spokenDays_.isEmpty() ? localized(u"no weather yet")
                                               : spokenDays_.join(QStringLiteral("; "));
    return title + QStringLiteral(": ") + days;
}

}  // namespace zephyrix
