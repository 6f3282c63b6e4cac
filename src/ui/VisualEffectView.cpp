#include "VisualEffectView.h"

#include <QPainter>

#include "Theme.h"

namespace zephyrix {

VisualEffectView::VisualEffectView(QWidget* parent) : View(parent) {}

void VisualEffectView::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), Theme::color(Theme::Color::VibrancyShade));
}

}  // namespace zephyrix
