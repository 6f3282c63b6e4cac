#include "Hairline.h"

#include <algorithm>
#include <cmath>

#include <QPaintDevice>
#include <QPainter>

#include "Theme.h"

namespace zephyrix {

namespace {

// One device pixel up to scale 2, then two: thinner lines vanish on very dense screens.
double lineThickness(double scale) {
    return std::max(1.0, std::floor(scale / 1.5)) / scale;
}

double onDevicePixel(double position, double origin, double scale) {
    return (std::round((position + origin) * scale) / scale) - origin;
}

}  // namespace

Hairline::Hairline(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Hairline::paintHorizontal(QPainter& painter, double x, double y, double length) {
    const double scale = painter.device()->devicePixelRatioF();
    const double origin = painter.deviceTransform().dy() / scale;
    painter.fillRect(QRectF(x, onDevicePixel(y, origin, scale), length, lineThickness(scale)),
                     Theme::color(Theme::Color::Hairline));
}

void Hairline::paintVertical(QPainter& painter, double x, double y, double length) {
    const double scale = painter.device()->devicePixelRatioF();
    const double origin = painter.deviceTransform().dx() / scale;
    painter.fillRect(QRectF(onDevicePixel(x, origin, scale), y, lineThickness(scale), length),
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
