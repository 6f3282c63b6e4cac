#include "TextLine.h"

#include <utility>

namespace zephyrix {

namespace {

bool isFigure(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

}  // namespace

TextLine::TextLine(QString text, const SharedFont& font, Figures figures)
    : text_(std::move(text)), font_(font), figures_(figures) {}

// Calls visit(run, its width, its offset inside that width): a run is one figure, or all between
// two.
template <class Visit>
void TextLine::visitRuns(const Visit& visit) const {
    if (figures_ == Figures::Proportional || text_.isRightToLeft()) {
        visit(text_, font_.width(text_), 0.0);
        return;
    }
    const double cell = font_.figureWidth();
    for (qsizetype at = 0; at < text_.size();) {
        qsizetype end = at + 1;
        const bool figure = isFigure(text_[at]);
        while (!figure && end < text_.size() && !isFigure(text_[end]))
            ++end;
        const QString run = text_.mid(at, end - at);
        const double advance = font_.width(run);
        visit(run, figure ? cell : advance, figure ? (cell - advance) / 2.0 : 0.0);
        at = end;
    }
}

double TextLine::width() const {
    double sum = 0.0;
    visitRuns([&](const QString&, double width, double) { sum += width; });
    return sum;
}

void TextLine::draw(QPainter& painter, double left, double baseline) const {
    double x = left;
    visitRuns([&](const QString& run, double width, double offset) {
        font_.draw(painter, x + offset, baseline, run);
        x += width;
    });
}

QString TextLine::elided(const QString& text, const SharedFont& font, Figures figures,
                         double width) {
    if (TextLine(text, font, figures).width() <= width)
        return text;
    // Tabular figures are wider than the font's own: ask for a little less until it fits.
    double room = width;
    QString shorter = font.elided(text, room);
    while (room > 2.0 && TextLine(shorter, font, figures).width() > width) {
        room -= 2.0;
        shorter = font.elided(text, room);
    }
    return shorter;
}

}  // namespace zephyrix
