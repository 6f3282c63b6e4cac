#include "View.h"

#include <QPainter>

namespace zephyrix {

View::View(QWidget* parent) : QWidget(parent) {}

void View::setBackgroundColor(const QColor& color) {
    backgroundColor_ = color;
    update();
}

void View::paintEvent(QPaintEvent* /*event*/) {
    if (backgroundColor_.isValid() && backgroundColor_.alpha() > 0)
        QPainter(this).fillRect(rect(), backgroundColor_);
}

}  // namespace zephyrix
