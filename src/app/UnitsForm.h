#pragma once

#include <vector>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVariantMap>
#include <QWidget>

#include "foundation/UserDefaults.h"
#include "meteo/UnitTable.h"

namespace zephyrix {

/// The units to choose, each with an example of the weather as it is, and first of all those that
/// are usual in the user's country. A choice is written to the store and told; saving is the
/// window's matter.
class UnitsForm : public QWidget {
    Q_OBJECT

  public:
    /// The store outlives the form.
    explicit UnitsForm(UserDefaults& settings, QWidget* parent = nullptr);

    /// Shows what is stored, with examples from an observation; where that has no value, from an
    /// invented one.
    void showStored(const QVariantMap& observation);

  Q_SIGNALS:
    void changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct UnitChoice {
        const QuantityUnits* quantity;
        QComboBox* box;   // its entries carry the units' codes
        QLabel* example;  // a value in the chosen unit
    };

    void addUsual();
    void addChoice(const QuantityUnits& quantity);
    void takeUsual();
    void store(const UnitChoice& choice, UnitCode code);

    UserDefaults& settings_;
    QPushButton* usual_;
    std::vector<UnitChoice> choices_;
};

}  // namespace zephyrix
