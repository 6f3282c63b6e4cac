#include "Card.h"

#include <QPainter>

namespace zephyrix {

namespace {

constexpr double radius = 10.0;  // points
constexpr int edgeAlpha = 40;    // of 255, of the text's colour

}  // namespace

void Card::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlpha(edgeAlpha);
    painter.setPen(edge);
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

QLabel* textLabel(QWidget* parent, double factor, bool isStrong) {
    auto* const label = new QLabel(parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(isStrong ? QFont::DemiBold : QFont::Normal);
    label->setFont(font);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

}  // namespace zephyrix
