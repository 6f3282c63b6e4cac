#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>

class QPainter;

namespace zephyrix {

/// A font at its size, measured and drawn with an engine that all sizes of its family and weight
/// share, scaled. To make an engine is to ask the system's font configuration, which takes longer
/// than all that a row draws with it. Glyphs that are not hinted, as the theme's, scale exactly.
/// Lengths are points of the painter.
class SharedFont {
  public:
    explicit SharedFont(const QFont& font);

    /// Told by the engine that stands for the family: to ask whether it is there, or to name one
    /// that may stand for it, would be one more look through the font configuration.
    [[nodiscard]] static bool isInstalled(const QString& family);

    /// Whether it can draw the character, instead of the box that stands for a missing one.
    [[nodiscard]] bool has(QChar character) const { return metrics_.inFont(character); }

    [[nodiscard]] double width(const QString& run) const;
    /// Of the widest of the figures 0 to 9.
    [[nodiscard]] double figureWidth() const;
    /// Above and below the baseline; whole points, as the toolkit has them.
    [[nodiscard]] double ascent() const;
    [[nodiscard]] double descent() const;
    [[nodiscard]] double height() const { return ascent() + descent(); }
    /// From one baseline to the next.
    [[nodiscard]] double lineSpacing() const;

    /// The text itself when it fits, else its beginning and "…".
    [[nodiscard]] QString elided(const QString& text, double width) const;
    /// The lines in which a text without line breaks fits that width, broken between words.
    [[nodiscard]] QStringList wrapped(const QString& text, double width) const;

    void draw(QPainter& painter, double left, double baseline, const QString& run) const;

  private:
    /// The width at the shared size, measured when it is not known.
    template <class Measure>
    [[nodiscard]] double measured(const QString& what, const Measure& measure) const;

    QFont shared_;
    QFontMetricsF metrics_;
    double scale_;  // of the shared size to the font's own
};

}  // namespace zephyrix
