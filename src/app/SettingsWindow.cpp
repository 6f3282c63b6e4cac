#include "SettingsWindow.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QTextStream>

#include "Command.h"
#include "PlaceCommand.h"
#include "SharedSettings.h"
#include "foundation/Localized.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

QString placeText() {
    QString text;
    QTextStream out(&text);
    try {
        printPlace(out);
    } catch (const CommandError& error) {
        return error.text();
    }
    QStringList lines = text.trimmed().split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = line.simplified();  // its columns are for a terminal
    return lines.join(QLatin1Char('\n'));
}

/// "wind" is the key of a setting, "Wind" that of its translation.
QString nameOf(const QuantityUnits& quantity) {
    QString key = quantity.name.toString();
    key[0] = key.at(0).toUpper();
    return localized(key);
}

}  // namespace

SettingsWindow::SettingsWindow() : settings_(openSharedSettings()), place_(new QLabel(this)) {
    setWindowTitle(QStringLiteral("Zephyrix"));
    auto* const form = new QFormLayout(this);
    place_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(localized(u"Place"), place_);
    for (const QuantityUnits& quantity : allQuantities)
        if (quantity.isSetting)
            addChoice(quantity);
    for (const UnitChoice& choice : choices_) {
        form->addRow(nameOf(*choice.quantity), choice.box);
        connect(choice.box, &QComboBox::activated, this, [this, choice] { store(choice); });
    }
    showStored();
    connect(settings_.get(), &UserDefaults::changedByOthers, this, &SettingsWindow::showStored);
}

void SettingsWindow::addChoice(const QuantityUnits& quantity) {
    auto* const box = new QComboBox(this);
    box->setObjectName(quantity.name.toString());
    for (const Unit& unit : quantity.units)
        box->addItem(localized(unit.text), static_cast<qlonglong>(unit.code));
    choices_.push_back({&quantity, box});
}

void SettingsWindow::store(const UnitChoice& choice) {
    settings_->set(choice.quantity->name.toString(), choice.box->currentData());
    try {
        save(*settings_);
    } catch (const CommandError& error) {
        logLine(error.text());
    }
}

void SettingsWindow::showStored() {
    place_->setText(placeText());
    for (const UnitChoice& choice : choices_) {
        const auto code =
            static_cast<qlonglong>(settings_->integer(choice.quantity->name.toString()));
        choice.box->setCurrentIndex(choice.box->findData(code));  // none for an unknown one
    }
}

void SettingsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace zephyrix
