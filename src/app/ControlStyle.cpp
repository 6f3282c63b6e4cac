#include "ControlStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace zephyrix {

namespace {

const QString toolkitsOwn = QStringLiteral("fusion");
constexpr int outlineAlpha = 110;  // of 255, of the text's colour: 3 : 1 against the ground

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

}  // namespace

ControlStyle::ControlStyle() : QProxyStyle(toolkitsOwn) {}

void ControlStyle::useWhereNoneIsChosen() {
    if (QApplication::style()->name() == toolkitsOwn)
        QApplication::setStyle(new ControlStyle);  // the application owns it
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    const bool isField = element == PE_PanelLineEdit && !option->state.testFlag(State_HasFocus);
    const bool needsOutline = isRound || isField || element == PE_IndicatorCheckBox;
    if (!needsOutline || !isDark(option->palette))
        return;
    constexpr double inset = 0.5;  // points: the middle of the toolkit's outline
    constexpr double corner = 2.0;
    QColor outline = option->palette.color(QPalette::WindowText);
    outline.setAlpha(outlineAlpha);
    const QRectF bounds = QRectF(option->rect).adjusted(inset, inset, -inset, -inset);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(outline, 1.0));
    painter->setBrush(Qt::NoBrush);
    if (isRound)
        painter->drawEllipse(bounds);
    else
        painter->drawRoundedRect(bounds, corner, corner);
    painter->restore();
}

}  // namespace zephyrix
