#pragma once

#include <QLabel>
#include <QWidget>

namespace zephyrix {

/// A surface with round corners, in the palette's colours, on which things stand that belong
/// together.
class Card : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    static constexpr int padding = 12;  // points, around what is on it

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A text in which a part of the window is named, or (with `factor` below 1) a remark.
[[nodiscard]] QLabel* textLabel(QWidget* parent, double factor, bool isStrong);

}  // namespace zephyrix
