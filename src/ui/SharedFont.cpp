#include "SharedFont.h"

#include <algorithm>
#include <cmath>

#include <QCache>
#include <QFontInfo>
#include <QPainter>
#include <QTextLayout>

namespace zephyrix {

namespace {

// Large enough that the engine's own rounding of its measures does not show at usual sizes.
constexpr int sharedSize = 64;  // pixels

/// What was measured at the shared size: a run in a font.
struct Measured {
    QString family;
    int weight;
    QString text;

    bool operator==(const Measured&) const = default;
};

std::size_t qHash(const Measured& key, std::size_t seed = 0) {
    return qHashMulti(seed, key.family, key.weight, key.text);
}

/// The widths of the runs that were measured last. Each row asks several times for each of its
/// runs, in each pass; to measure is to shape, which is as long as drawing.
QCache<Measured, double>& measuredWidths() {
    constexpr int mostWidths = 512;
    static QCache<Measured, double> widths(mostWidths);
    return widths;
}

QFont atSharedSize(QFont font) {
    font.setPixelSize(sharedSize);
    return font;
}

}  // namespace

template <class Measure>
double SharedFont::measured(const QString& what, const Measure& measure) const {
    const Measured key{shared_.family(), shared_.weight(), what};
    const double* width = measuredWidths().object(key);
    if (width == nullptr) {
        auto* const now = new double(measure());
        measuredWidths().insert(key, now);
        width = now;
    }
    return *width;
}

SharedFont::SharedFont(const QFont& font)
    : shared_(atSharedSize(font)),
      metrics_(shared_),
      scale_(static_cast<double>(font.pixelSize()) / sharedSize) {}

bool SharedFont::isInstalled(const QString& family) {
    QFont font(family);
    font.setHintingPreference(QFont::PreferNoHinting);  // as the theme's, to share their engine
    return QFontInfo(atSharedSize(font)).family() == family;
}

double SharedFont::width(const QString& run) const {
    return scale_ * measured(run, [&] { return metrics_.horizontalAdvance(run); });
}

double SharedFont::figureWidth() const {
    const auto figures = QStringLiteral("0123456789");
    return scale_ * measured(QLatin1Char('\0') + figures, [&] {
               double widest = 0.0;
               for (const QChar figure : figures)
                   widest = std::max(widest, metrics_.horizontalAdvance(figure));
               return widest;
           });
}

double SharedFont::ascent() const {
    return std::ceil(metrics_.ascent() * scale_);
}

double SharedFont::descent() const {
    return std::ceil(metrics_.descent() * scale_);
}

double SharedFont::lineSpacing() const {
    return height() + std::round(metrics_.leading() * scale_);
}

QString SharedFont::elided(const QString& text, double width) const {
    return metrics_.elidedText(text, Qt::ElideRight, width / scale_);
}

QStringList SharedFont::wrapped(const QString& text, double width) const {
    QTextLayout layout(text, shared_);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width / scale_);
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

void SharedFont::draw(QPainter& painter, double left, double baseline, const QString& run) const {
    painter.save();
    painter.translate(left, baseline);
    painter.scale(scale_, scale_);
    painter.setFont(shared_);
    painter.drawText(QPointF(), run);
    painter.restore();
}

}  // namespace zephyrix
