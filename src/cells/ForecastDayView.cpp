#include "ForecastDayView.h"

#include <cmath>
#include <utility>

namespace zephyrix {

ForecastDayView::ForecastDayView(QWidget* parent) : View(parent) {}

void ForecastDayView::connectOutlets() {
    dayLabel_ = outlet<Label>(this, QStringLiteral("dayLabel"));
    symbol_ = outlet<ImageView>(this, QStringLiteral("symbol"));
    tx_ = outlet<Label>(this, QStringLiteral("tx"));
    tn_ = outlet<Label>(this, QStringLiteral("tn"));
    separator_ = outlet<QWidget>(this, QStringLiteral("separator"));
    temperatures_ = outlet<QLayout>(this, QStringLiteral("temperatures"));
}

double ForecastDayView::fittingTemperatureScale() const {
    constexpr int rounding = 2;  // points: each of the two texts may begin and end between two
    const int texts = tx()->sizeHint().width() + tn()->sizeHint().width();
    const int gap = temperatures_->sizeHint().width() - texts;
    const double room = temperatures_->geometry().width() - gap;
    return texts <= room ? 1.0 : (room - rounding) / texts;
}

void ForecastDayView::setTemperatureScale(double scale) {
    if (std::exchange(temperatureScale_, scale) == scale)
        return;
    for (const auto& [label, style] :
         {std::pair(tx(), Theme::TextStyle::High), std::pair(tn(), Theme::TextStyle::Low)}) {
        QFont font = Theme::font(style);
        font.setPixelSize(static_cast<int>(std::floor(font.pixelSize() * scale)));
        label->setTextFont(font);
    }
}

void ForecastDayView::setHighlighted(bool highlighted) {
    setBackgroundColor(highlighted ? QColor(Qt::yellow) : QColor(Qt::transparent));
}

}  // namespace zephyrix
