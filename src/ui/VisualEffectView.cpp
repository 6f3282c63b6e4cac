#include "VisualEffectView.h"

#include <QPainter>

#include "PanelSurface.h"
#include "Theme.h"

namespace zephyrix {

VisualEffectView::VisualEffectView(QWidget* parent) : View(parent) {}

QColor VisualEffectView::blended(const QColor& content) const {
    QColor color = content;
    color.setAlphaF(content.alphaF() * Theme::color(Theme::Color::VibrancyContent).alphaF());
    return color;
}

void VisualEffectView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    PanelSurface::fill(painter, *this, Theme::color(Theme::Color::VibrancyShade));
}

}  // namespace zephyrix
