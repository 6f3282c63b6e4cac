#include "UnitsCommand.h"

#include <algorithm>

#include <QJsonDocument>
#include <QJsonObject>

#include "SharedSettings.h"
#include "meteo/UnitTable.h"

namespace zephyrix {

namespace {

QString unitText(const QuantityUnits& quantity, UnitCode code) {
    const Unit* const unit = unitWithCode(quantity.units, code);
    return unit ? unit->text.toString() : QStringLiteral("unknown (%1)").arg(code);
}

QString names(const QuantityUnits& quantity) {
    QStringList texts;
    for (const Unit& unit : quantity.units)
        texts << unit.text.toString();
    return texts.join(QLatin1String(", "));
}

QString settingNames() {
    QStringList texts;
    for (const QuantityUnits& quantity : allQuantities)
        if (quantity.isSetting)
            texts << quantity.name.toString();
    return texts.join(QLatin1String(", "));
}

const QuantityUnits& quantityNamed(const QString& name) {
    const auto* const found = std::find_if(
        allQuantities.begin(), allQuantities.end(),
        [&](const QuantityUnits& quantity) { return quantity.isSetting && quantity.name == name; });
    if (found == allQuantities.end())
        throw CommandError::usage(
            QStringLiteral("there is no quantity \"%1\"; there are: %2").arg(name, settingNames()));
    return *found;
}

const Unit& unitSpelled(const QuantityUnits& quantity, const QString& text) {
    const QString spelling = text.trimmed().toLower();
    const auto found =
        std::find_if(quantity.units.begin(), quantity.units.end(), [&](const Unit& unit) {
            return unit.spellings.toString().split(QLatin1Char(' ')).contains(spelling);
        });
    if (found == quantity.units.end())
        throw CommandError::usage(QStringLiteral("there is no %1 unit \"%2\"; there are: %3")
                                      .arg(quantity.name.toString(), text, names(quantity)));
    return *found;
}

void printJson(QTextStream& out) {
    const auto settings = openSharedSettings();
    QJsonObject object;
    for (const QuantityUnits& quantity : allQuantities) {
        if (!quantity.isSetting)
            continue;
        const UnitCode code = settings->integer(quantity.name.toString());
        object.insert(quantity.name.toString(),
                      QJsonObject{{QStringLiteral("code"), static_cast<qint64>(code)},
                                  {QStringLiteral("unit"), unitText(quantity, code)}});
    }
    out << QJsonDocument(object).toJson();
}

void run(const QStringList& arguments, QTextStream& out) {
    if (arguments.isEmpty())
        return printUnits(out);
    if (arguments == QStringList(QStringLiteral("--json")))
        return printJson(out);
    const QuantityUnits& quantity = quantityNamed(arguments.first());
    if (arguments.size() != 2)
        throw CommandError::usage(
            QStringLiteral("%1 takes one unit: %2").arg(arguments.first(), names(quantity)));
    const Unit& unit = unitSpelled(quantity, arguments.at(1));
    const auto settings = openSharedSettings();
    settings->set(quantity.name.toString(), static_cast<qlonglong>(unit.code));
    save(*settings);
    printUnits(out);
}

}  // namespace

void printUnits(QTextStream& out) {
    const auto settings = openSharedSettings();
    for (const QuantityUnits& quantity : allQuantities)
        if (quantity.isSetting)
            out << quantity.name.toString().leftJustified(15)
                << unitText(quantity, settings->integer(quantity.name.toString())) << '\n';
}

const Command unitsCommand = {
    "units",
    "  units [--json]                the units in which the panel shows numbers\n"
    "  units QUANTITY UNIT           chooses one: \"units wind km/h\", \"units temperature F\"\n",
    run};

}  // namespace zephyrix
