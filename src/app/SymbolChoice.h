#pragma once

#include <vector>

#include <QButtonGroup>
#include <QWidget>

#include "foundation/UserDefaults.h"

namespace zephyrix {

/// The symbol sets to choose, each with a picture of some of its symbols. A choice is written to
/// the panel's store and told, and what was drawn before in the other set is forgotten.
class SymbolChoice : public QWidget {
    Q_OBJECT

  public:
    /// The panel's own store; it outlives this.
    explicit SymbolChoice(UserDefaults& panelSettings, QWidget* parent = nullptr);

    void showStored();

  Q_SIGNALS:
    void changed();

  private:
    UserDefaults& settings_;
    QButtonGroup* sets_;  // by number
};

}  // namespace zephyrix
