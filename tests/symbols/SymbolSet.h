#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QString>
#include <gtest/gtest.h>

namespace zephyrix::testing {

/// A symbol set of its own for each test, "symbols_0.bundle" in an empty data folder, with empty
/// caches and a screen of scale 1.
class SymbolSet : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// Makes an image of the set.
    void add(const QString& name, const QImage& image) const;
    /// Makes an opaque image in a colour of its own, which nameOf() knows again.
    void addFilled(const QString& name);
    /// The name of the filled image that this is; empty for a null image.
    [[nodiscard]] QString nameOf(const QImage& image) const;
    [[nodiscard]] QColor colourOf(const QString& name) const;

    [[nodiscard]] QString dataFolder() const { return dataFolder_; }
    [[nodiscard]] QString setFolder() const;

  private:
    QString dataFolder_;
    QHash<QString, QRgb> colours_;
};

/// Sets the main screen's scale.
void setScreenScale(double scale);

/// An opaque image of one colour.
[[nodiscard]] QImage filled(const QSize& pixels, const QColor& colour);

}  // namespace zephyrix::testing
