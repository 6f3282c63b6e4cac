#include "ForecastDayView.h"

namespace zephyrix {

ForecastDayView::ForecastDayView(QWidget* parent) : View(parent) {}

void ForecastDayView::connectOutlets() {
    dayLabel_ = outlet<Label>(this, QStringLiteral("dayLabel"));
    symbol_ = outlet<ImageView>(this, QStringLiteral("symbol"));
    tx_ = outlet<Label>(this, QStringLiteral("tx"));
    tn_ = outlet<Label>(this, QStringLiteral("tn"));
    separator_ = outlet<QWidget>(this, QStringLiteral("separator"));
}

void ForecastDayView::setHighlighted(bool highlighted) {
    setBackgroundColor(highlighted ? QColor(Qt::yellow) : QColor(Qt::transparent));
}

}  // namespace zephyrix
