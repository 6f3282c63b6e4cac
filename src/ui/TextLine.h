#pragma once

#include <QString>

#include "SharedFont.h"

class QPainter;

namespace zephyrix {

/// One line of text. With tabular figures every digit takes the same width, so that numbers below
/// each other line up; text of right-to-left scripts is set as the toolkit sets it.
class TextLine {
  public:
    enum class Figures : bool { Proportional, Tabular };

    TextLine(QString text, const SharedFont& font, Figures figures = Figures::Proportional);

    [[nodiscard]] double width() const;  // points
    /// `baseline` and `left` in points of the painter.
    void draw(QPainter& painter, double left, double baseline) const;

    /// The text itself when it fits, else its beginning and "…".
    [[nodiscard]] static QString elided(const QString& text, const SharedFont& font,
                                        Figures figures, double width);

  private:
    template <class Visit>
    void visitRuns(const Visit& visit) const;

    QString text_;
    SharedFont font_;
    Figures figures_;
};

}  // namespace zephyrix
