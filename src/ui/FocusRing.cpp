#include "FocusRing.h"

#include <QPainter>

#include "Theme.h"

namespace zephyrix {

bool isKeyboardFocus(Qt::FocusReason reason) noexcept {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason;
}

void paintFocusRing(QPainter& painter, const QRectF& bounds) {
    constexpr double inset = 5.0;      // points
    constexpr double thickness = 2.0;  // points
    constexpr double radius = 10.0;    // points
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Theme::color(Theme::Color::FocusRing), thickness));
    painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), radius, radius);
}

}  // namespace zephyrix
