#pragma once

#include <QSizeF>
#include <QString>

namespace zephyrix {

/// The key of a finished symbol in the caches, and the name of its file:
/// "NAME+WIDTH+HEIGHT+SCALE.png", each number with two decimals and a point, in any language.
[[nodiscard]] QString symbolKey(const QString& name, const QSizeF& size, double scale);

}  // namespace zephyrix
