#pragma once

#include <QWidget>

namespace zephyrix {

/// A separator: one line, as thin as the screen can show it sharply, in the middle of the view and
/// along its longer side.
class Hairline : public QWidget {
    Q_OBJECT

  public:
    explicit Hairline(QWidget* parent = nullptr);

    /// A line from (x, y), in points, with the theme's hairline colour: moved to whole
    /// device pixels, and as many of them thick as the scale has full ones.
    static void paintHorizontal(QPainter& painter, double x, double y, double length);
    static void paintVertical(QPainter& painter, double x, double y, double length);

    [[nodiscard]] QSize sizeHint() const override { return {1, 1}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zephyrix
