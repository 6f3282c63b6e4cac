#pragma once

#include <memory>
#include <vector>

#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include "foundation/UserDefaults.h"
#include "meteo/UnitTable.h"

namespace zephyrix {

/// The main application's window: the place, and the units to choose. A choice is stored at once,
/// so that a panel on the screen shows it at once; what another program stores shows here. Escape
/// closes it.
class SettingsWindow : public QWidget {
    Q_OBJECT

  public:
    /// Raises CommandError when the settings cannot be opened.
    SettingsWindow();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct UnitChoice {
        const QuantityUnits* quantity;
        QComboBox* box;  // its entries carry the units' codes
    };

    void addChoice(const QuantityUnits& quantity);
    void store(const UnitChoice& choice);
    void showStored();

    std::unique_ptr<UserDefaults> settings_;
    QLabel* place_;
    std::vector<UnitChoice> choices_;
};

}  // namespace zephyrix
