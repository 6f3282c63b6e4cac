#include "View.h"

#include <QPainter>

#include "PanelSurface.h"

namespace zephyrix {

View::View(QWidget* parent) : QWidget(parent) {}

void View::setBackgroundColor(const QColor& color) {
    backgroundColor_ = color;
    update();
}

void View::paintEvent(QPaintEvent* /*event*/) {
    if (!backgroundColor_.isValid() || backgroundColor_.alpha() == 0)
        return;
    const auto* around = qobject_cast<View*>(parentWidget());
    QPainter painter(this);
    PanelSurface::fill(painter, *this,
                       around == nullptr ? backgroundColor_ : around->blended(backgroundColor_));
}

}  // namespace zephyrix
