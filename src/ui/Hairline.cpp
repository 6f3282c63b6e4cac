#include "Hairline.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "DeviceGrid.h"
#include "Theme.h"

namespace zephyrix {

namespace {

// One device pixel up to scale 2, then two: thinner lines vanish on very dense screens.
double lineThickness(double scale) {
    return std::max(1.0, std::floor(scale / 1.5)) / scale;
}

}  // namespace

Hairline::Hairline(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Hairline::paintHorizontal(QPainter& painter, double x, double y, double length) {
    const DeviceGrid grid(painter);
    painter.fillRect(QRectF(grid.snapped({x, y}), QSizeF(length, lineThickness(grid.scale()))),
                     Theme::color(Theme::Color::Hairline));
}

void Hairline::paintVertical(QPainter& painter, double x, double y, double length) {
    const DeviceGrid grid(painter);
    painter.fillRect(QRectF(grid.snapped({x, y}), QSizeF(lineThickness(grid.scale()), length)),
                     Theme::color(Theme::Color::Hairline));
}

void Hairline::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (width() > height())
        paintHorizontal(painter, 0, 0, width());
    else
        paintVertical(painter, 0, 0, height());
}

}  // namespace zephyrix
