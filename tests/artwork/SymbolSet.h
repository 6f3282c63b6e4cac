#pragma once

#include <functional>
#include <vector>

#include <QImage>
#include <QString>
#include <QStringList>

namespace zephyrix::testing {

constexpr int kMasterSize = 240;  // pixels

/// A symbol set as it is shipped: set 0 inside the program, set 1 in the data folder of the build.
struct SymbolSet {
    QString folder;
    double moonRadius = 0;  ///< pixels, of the moon's disc inside its outline

    /// The image of this name, null when there is none; 32 bits, not premultiplied.
    [[nodiscard]] QImage image(const QString& name) const;
    /// The names of all its symbols: without the wind arrow, which set 0 holds besides.
    [[nodiscard]] QStringList names() const;
};

[[nodiscard]] const std::vector<SymbolSet>& symbolSets();

/// Every name that a symbol code can ask for by the scheme, "noshadow_" variants included.
[[nodiscard]] QStringList namesOfScheme();

/// How many pixels fulfil a condition on (x, y, colour).
[[nodiscard]] int countPixels(const QImage& image,
                              const std::function<bool(int x, int y, QRgb pixel)>& condition);

/// All the ink of an image: the sum of its alpha, 1 a full pixel.
[[nodiscard]] double inkOf(const QImage& image);

}  // namespace zephyrix::testing
