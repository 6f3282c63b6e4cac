#pragma once

#include <QRectF>
#include <Qt>

class QPainter;

namespace zephyrix {

/// Whether focus that came for this reason is shown: it is for the keyboard's user, a click has no
/// need of it.
[[nodiscard]] bool isKeyboardFocus(Qt::FocusReason reason) noexcept;

/// The ring inside the edges of a view that has the keyboard's focus.
void paintFocusRing(QPainter& painter, const QRectF& bounds);

}  // namespace zephyrix
