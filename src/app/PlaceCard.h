#pragma once

#include <optional>

#include <QFormLayout>
#include <QLabel>

#include "Card.h"
#include "model/LocationResult.h"

namespace zephyrix {

/// The chosen place: name, country, coordinates, zone with its present time, sun and moon of its
/// day.
class PlaceCard : public Card {
    Q_OBJECT

  public:
    explicit PlaceCard(QWidget* parent = nullptr);

    /// Nothing, or a place that cannot be used, when none is chosen.
    void setPlace(const std::optional<LocationResult>& place);
    /// Shows time, sun and moon as they are now.
    void showNow();

  private:
    QLabel* addRow(QStringView caption);

    std::optional<LocationResult> place_;
    QLabel* name_;
    QLabel* area_;
    QFormLayout* rows_;
    QLabel* coordinates_;
    QLabel* time_;
    QLabel* sun_;
    QLabel* moon_;
};

}  // namespace zephyrix
