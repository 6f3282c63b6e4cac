#include "ObsCell.h"

#include <cmath>

#include "foundation/Bundle.h"
#include "foundation/Clock.h"
#include "foundation/FatalError.h"
#include "foundation/Localized.h"
#include "foundation/NamedException.h"
#include "foundation/TimeZone.h"
#include "meteo/MeteoMapping.h"
#include "ui/Theme.h"

namespace zephyrix {

namespace {

// Whatever lies below this is the feed's mark for a missing number, -9999.
constexpr std::int64_t leastNumber = -9998;

constexpr double secondsAnHour = 3600.0;
constexpr double oldFrom = 2.0;  // hours; an observation from here on is called old

const Number& required(const std::optional<Number>& number, const char* name) {
    if (!number)
        fatalError(QStringLiteral("an observation without \"%1\" reached its row")
                       .arg(QLatin1String(name)));
    return *number;
}

QString languageOfTexts() {
    const QStringList languages = Bundle::main().preferredLocalizations();
    if (languages.isEmpty())
        fatalError(QStringLiteral("the program has no language"));
    return languages.first();
}

// Where the sun does not rise or set that day there is no sunrise to compare with; it is day all
// day, or night, and the text is that of day or of night.
std::optional<QString> weatherText(const Obs& record, const LocationResult& place) {
    const QString language = languageOfTexts();
    if (!record.date)
        return MeteoMapping::stringForN(record.n, record.ww, language, true);
    try {
        return MeteoMapping::stringForN(record.n, record.ww, language, *record.date, place);
    } catch (const NamedException& exception) {
        if (exception.name() != QLatin1String("NullPhenomenon"))
            throw;
        const bool sunStaysUp = exception.reason() == QLatin1String("sun");
        return MeteoMapping::stringForN(record.n, record.ww, language, sunStaysUp);
    }
}

}  // namespace

ObsCell::ObsCell(QWidget* parent) : TableCell(parent) {}

void ObsCell::connectOutlets() {
    TableCell::connectOutlets();
    setSymbol(outlet<ImageView>(this, QStringLiteral("symbol")));
    setTitleLabel(outlet<Label>(this, QStringLiteral("titleLabel")));
    setDateLabel(outlet<Label>(this, QStringLiteral("dateLabel")));
    setDetailLabel1(outlet<Label>(this, QStringLiteral("detailLabel1")));
    setDetailLabel2(outlet<Label>(this, QStringLiteral("detailLabel2")));
    setWindContainer(outlet<QKWindpfeil>(this, QStringLiteral("windContainer")));
    setRainContainer(outlet<QWidget>(this, QStringLiteral("rainContainer")));
    setRrr(outlet<Label>(this, QStringLiteral("rrr")));
    setRrrUnits(outlet<Label>(this, QStringLiteral("rrrUnits")));
    setRrrhLabel(outlet<Label>(this, QStringLiteral("rrrhLabel")));
    setPpp(outlet<Label>(this, QStringLiteral("ppp")));
    setPppUnits(outlet<Label>(this, QStringLiteral("pppUnits")));
    ageLabel_ = findChild<Label*>(QStringLiteral("ageLabel"));
}

void ObsCell::awakeFromNib() {
    constexpr double separatorLeft = 47.0;  // points
    TableCell::awakeFromNib();
    df_.setDateStyle(DateFormatter::Style::None);
    df_.setTimeStyle(DateFormatter::Style::Short);
    setSeparatorInset(QMarginsF(separatorLeft, 0.0, 0.0, 0.0));
}

void ObsCell::setHighlighted(bool highlighted, bool animated) {
    TableCell::setHighlighted(highlighted, animated);
}

void ObsCell::setSelected(bool selected, bool animated) {
    TableCell::setSelected(selected, animated);
}

void ObsCell::setLocation(const std::optional<LocationResult>& location) {
    location_ = location;
    if (!location_)
        fatalError(QStringLiteral("an observation row was given no place"));
    retargetTime();
}

void ObsCell::retargetTime() {
    df_.setTimeZone(timeZoneWithName(location()->timezone().value_or(QString())));
}

void ObsCell::layoutSubviews() {
    fitSymbol();
    TableCell::layoutSubviews();
    configureCell(data());
}

// In a narrow row the symbol leaves room for the words.
void ObsCell::fitSymbol() {
    constexpr int narrowBelow = 375;  // points
    constexpr int usualSize = 80;     // points
    constexpr int narrowSize = 64;    // points
    if (symbol() != nullptr) {
        const int size =
            Theme::scaled(width() < Theme::scaled(narrowBelow) ? narrowSize : usualSize);
        symbol()->setFixedSize(size, size);
    }
}

void ObsCell::configureCell(const std::optional<Obs>& record) {
    if (!record || !location())
        return;
    if (defaults() == nullptr)
        fatalError(QStringLiteral("an observation row has no settings"));
    if (cs() == nullptr)
        fatalError(QStringLiteral("an observation row has no symbol renderer"));
    const ChosenUnits units = chosenUnits();
    showSymbol(*record);
    titleLabel()->setText(location()->name().value_or(QString()));
    showWeather(*record);
    showTemperature(*record, units.temperature);
    showWind(*record, units.wind);
    showPrecipitation(*record, units.precipitation);
    showPressure(*record, units.pressure);
    showTime(*record);
    showAge(*record);
}

ChosenUnits ObsCell::chosenUnits() const {
    const UserDefaults& store = *defaults();
    return {store.integer(QStringLiteral("temperature")), store.integer(QStringLiteral("wind")),
            store.integer(QStringLiteral("precipitation")),
            store.integer(QStringLiteral("pressure"))};
}

void ObsCell::showSymbol(const Obs& record) {
    symbol()->setImage(cs()->symbolForCode(record.symbol.value_or(Number(0)),
                                           symbol()->boundsSize(), record.date));
}

void ObsCell::showWeather(const Obs& record) {
    const auto text = weatherText(record, *location());
    detailLabel2()->setText(
        MeteoMapping::capitalizeFirst(text.value_or(QString())).value_or(QString()));
}

void ObsCell::showTemperature(const Obs& record, UnitCode unit) {
    const Number& tt = required(record.tt, "tt");
    detailLabel1()->setText(MeteoMapping::formattedTempString(tt, unit));
    // The comfort temperature is computed and deliberately not shown: a row shows what was
    // measured. Its inputs are part of a complete observation.
    const Number& ff = required(record.ff, "ff");
    const Number& td = required(record.td, "td");
    const double comfort = MeteoMapping::comfortTempWithTemperature(
        tt.doubleValue(), ff.doubleValue(), td.doubleValue());
    [[maybe_unused]] const QString hidden =
        MeteoMapping::formattedTempString(Number(std::round(comfort)), unit);
}

void ObsCell::showWind(const Obs& record, UnitCode unit) {
    const Number& ff = required(record.ff, "ff");
    if (ff.integerValue() < leastNumber) {
        windContainer()->setWindSpeed(QStringLiteral("-"));
    } else {
        const double speed = std::round(MeteoMapping::mapKnotsToUnit(unit, ff.doubleValue()));
        windContainer()->setWindSpeed(QString::number(Number(speed).integerValue()));
    }
    windContainer()->setDirection(record.dd);
    if (Label* label = windContainer()->windSpeedUnitsLabel())
        label->setText(MeteoMapping::windUnitForUnit(unit));
}

void ObsCell::showPrecipitation(const Obs& record, UnitCode unit) {
    rrr()->setText(MeteoMapping::formattedPrecipitationString(record.rrr, unit, true));
    rrrUnits()->setText(MeteoMapping::precipitationUnitForUnit(unit));
    const std::int64_t hours = record.rrrh ? record.rrrh->integerValue() : 0;
    if (hours >= leastNumber)
        rrrhLabel()->setText(MeteoMapping::formattedHoursString(record.rrrh, localized(u"h")));
}

void ObsCell::showPressure(const Obs& record, UnitCode unit) {
    ppp()->setText(MeteoMapping::formattedPressureString(record.ppp, unit, true));
    pppUnits()->setText(MeteoMapping::pressureUnitForUnit(unit));
}

void ObsCell::showTime(const Obs& record) {
    retargetTime();
    dateLabel()->setText(record.date ? df_.stringFromDate(*record.date) : QString());
}

std::optional<std::int64_t> ObsCell::shownAge(const Obs& record) {
    if (!record.date)
        return std::nullopt;
    const double hours = Clock::now().secondsSince(*record.date) / secondsAnHour;
    return hours >= oldFrom ? std::optional(Number(hours).integerValue()) : std::nullopt;
}

QString ObsCell::ageText(const Obs& record) {
    const auto hours = shownAge(record);
    return hours ? localized(u"%1 h ago").arg(*hours) : QString();
}

std::optional<Instant> ObsCell::nextAge(const Obs& record) {
    if (!record.date)
        return std::nullopt;
    const auto shown = shownAge(record);
    const double next = shown ? static_cast<double>(*shown) + 1.0 : oldFrom;
    return record.date->addingSeconds(next * secondsAnHour);
}

void ObsCell::showAge(const Obs& record) {
    if (!ageLabel_)
        return;
    const QString text = ageText(record);
    ageLabel_->setVisible(!text.isEmpty());
    ageLabel_->setText(text);
    setToolTip(text);
}

QString ObsCell::spokenText() const {
    if (!location_ || defaults_ == nullptr)
        return {};
    const QString place = location_->name().value_or(QString());
    if (!data_)
        return place;
    QString text = spokenObservation(*data_, {place, detailLabel2_->text(), dateLabel_->text()},
                                     chosenUnits());
    if (ageLabel_ && !ageLabel_->isHidden())
        text += QStringLiteral(", ") + ageLabel_->text();
    return text;
}

}  // namespace zephyrix
