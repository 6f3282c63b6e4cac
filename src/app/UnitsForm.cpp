#include "UnitsForm.h"

#include <array>

#include <QEvent>
#include <QGridLayout>

#include "UsualUnits.h"
#include "foundation/Localized.h"
#include "meteo/MeteoMapping.h"
#include "model/Obs.h"
#include "places/PlaceList.h"

namespace zephyrix {

namespace {

/// A quantity's value in an observation, one to show where there is none, and its text in a unit.
struct Example {
    QLatin1String key;
    double otherwise;  // in the base unit
    QString (*text)(const std::optional<Number>& value, UnitCode unit);
};

constexpr int boxWidth = 84;  // points

// In the order of allQuantities.
constexpr std::array examples{
    Example{QLatin1String("tt"), 21.0, MeteoMapping::formattedTempString},
    Example{QLatin1String("ff"), 12.0, MeteoMapping::formattedWindString},
    Example{QLatin1String("rrr"), 2.4,
            [](const std::optional<Number>& value, UnitCode unit) {
                return MeteoMapping::formattedPrecipitationString(value, unit);
            }},
    Example{QLatin1String("ppp"), 1013.2,
            [](const std::optional<Number>& value, UnitCode unit) {
                return MeteoMapping::formattedPressureString(value, unit);
            }},
};

QString exampleText(const Example& example, const QVariantMap& observation, UnitCode unit) {
    const auto value = Number::fromVariant(observation.value(example.key));
    const bool isKnown = value && value->doubleValue() > MeteoMapping::missingValue;
    return example.text(isKnown ? value : Number(example.otherwise), unit);
}

/// "wind" is the key of a setting, "Wind" that of its translation.
QString nameOf(const QuantityUnits& quantity) {
    QString key = quantity.name.toString();
    key[0] = key.at(0).toUpper();
    return localized(key);
}

QString countryName(const QString& code) {
    return PlaceList(Bundle::main().preferredLocalizations().first()).countryName(code);
}

}  // namespace

UnitsForm::UnitsForm(UserDefaults& settings, QWidget* parent)
    : QWidget(parent), settings_(settings), usual_(new QPushButton(this)) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(2, 1);
    grid->setHorizontalSpacing(16);
    for (const QuantityUnits& quantity : allQuantities)
        if (quantity.isSetting)
            addChoice(quantity);
    addUsual();
}

void UnitsForm::addUsual() {
    const UnitSet units = usualUnits(countryOfUser());
    QStringList texts;
    for (std::size_t i = 0; i < choices_.size(); ++i)
        texts << localized(unitWithCode(choices_[i].quantity->units, units.at(i))->text).trimmed();
    const QString country = countryName(countryOfUser());
    const QString all = texts.join(QLatin1String(", "));
    usual_->setObjectName(QStringLiteral("usual"));
    usual_->setText(country.isEmpty() ? localized(u"Usual units: %1").arg(all)
                                      : localized(u"Usual in %1: %2").arg(country, all));
    connect(usual_, &QPushButton::clicked, this, &UnitsForm::takeUsual);
    static_cast<QGridLayout*>(layout())->addWidget(usual_, 0, 0, 1, 3);
    setTabOrder(usual_, choices_.front().box);
}

void UnitsForm::addChoice(const QuantityUnits& quantity) {
    auto* const box = new QComboBox(this);
    box->setObjectName(quantity.name.toString());
    box->setAccessibleName(nameOf(quantity));
    box->setMinimumWidth(boxWidth);
    box->installEventFilter(this);
    for (const Unit& unit : quantity.units)
        box->addItem(localized(unit.text).trimmed(), static_cast<qlonglong>(unit.code));
    auto* const caption = new QLabel(nameOf(quantity), this);
    caption->setBuddy(box);
    auto* const example = new QLabel(this);
    auto* const grid = static_cast<QGridLayout*>(layout());
    const int row = static_cast<int>(choices_.size()) + 1;
    grid->addWidget(caption, row, 0);
    grid->addWidget(box, row, 1);
    grid->addWidget(example, row, 2);
    choices_.push_back({&quantity, box, example});
    connect(box, &QComboBox::activated, this, [this, choice = choices_.back()] {
        store(choice, choice.box->currentData().toLongLong());
        Q_EMIT changed();
    });
}

// Who scrolls the window past a unit does not mean to choose another.
bool UnitsForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void UnitsForm::takeUsual() {
    const UnitSet units = usualUnits(countryOfUser());
    for (std::size_t i = 0; i < choices_.size(); ++i)
        store(choices_[i], units.at(i));
    Q_EMIT changed();
}

void UnitsForm::store(const UnitChoice& choice, UnitCode code) {
    settings_.set(choice.quantity->name.toString(), static_cast<qlonglong>(code));
}

void UnitsForm::showStored(const QVariantMap& observation) {
    const UnitSet usual = usualUnits(countryOfUser());
    bool isUsual = true;
    for (std::size_t i = 0; i < choices_.size(); ++i) {
        const UnitChoice& choice = choices_[i];
        const UnitCode code = settings_.integer(choice.quantity->name.toString());
        choice.box->setCurrentIndex(
            choice.box->findData(static_cast<qlonglong>(code)));  // none for an unknown one
        choice.example->setText(exampleText(examples.at(i), observation, code));
        choice.box->setAccessibleDescription(choice.example->text());
        isUsual = isUsual && code == usual.at(i);
    }
    usual_->setEnabled(!isUsual);
}

}  // namespace zephyrix
