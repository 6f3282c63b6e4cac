#pragma once

#include <memory>

#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include "PlaceCard.h"
#include "PlaceSearch.h"
#include "SymbolChoice.h"
#include "UnitsForm.h"
#include "foundation/UserDefaults.h"

namespace zephyrix {

/// The main application's window: the place and its search, units, symbols, where the weather comes
/// from and how old it is, and whether the panel is shown at login. A choice is stored at once, so
/// that a panel on the screen shows it at once; what another program stores shows here. Escape
/// closes it. On a screen that is too small for all of it, it is scrolled.
class SettingsWindow : public QWidget {
    Q_OBJECT

  public:
    /// Raises CommandError when the settings cannot be opened.
    SettingsWindow();

    /// In which nothing needs to be scrolled.
    [[nodiscard]] QSize wholeSize() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void scrollContent(QWidget* content);
    [[nodiscard]] QSize sizeOnScreen() const;
    void addPlace(QVBoxLayout* column);
    void addChoices(QVBoxLayout* column);
    void addWeather(QVBoxLayout* column);
    void takePlace(const ListedPlace& place);
    void takeLogin(bool on);
    void showStored();
    /// What changes with the time alone.
    void showNow();
    /// Writes what was chosen, and shows it.
    void keep(UserDefaults& store);

    std::unique_ptr<UserDefaults> settings_;
    std::unique_ptr<UserDefaults> panelSettings_;
    QScrollArea* scroll_;
    PlaceSearch* search_;
    PlaceCard* place_;
    UnitsForm* units_;
    SymbolChoice* symbols_;
    QLabel* state_;
    QLabel* source_;
    QCheckBox* login_;
    QTimer minute_;
};

}  // namespace zephyrix
