#include "TextButton.h"

#include <cmath>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include "FocusRing.h"
#include "PanelSurface.h"
#include "TextLine.h"
#include "Theme.h"

namespace zephyrix {

TextButton::TextButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

QSize TextButton::sizeHint() const {
    constexpr int sideMargin = 12;  // points
    constexpr int height = 36;      // points
    const TextLine line(text(), SharedFont(Theme::font(Theme::TextStyle::Button)));
    return {static_cast<int>(std::ceil(line.width())) + 2 * Theme::scaled(sideMargin),
            Theme::scaled(height)};
}

void TextButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (isDown() || underMouse())
        PanelSurface::fill(painter, *this, Theme::color(Theme::Color::HoverShade));
    const SharedFont font(Theme::font(Theme::TextStyle::Button));
    const TextLine line(
        TextLine::elided(text(), font, TextLine::Figures::Proportional, width() - 8.0), font);
    painter.setPen(Theme::color(isDown() ? Theme::Color::PrimaryText
                                         : Theme::textColor(Theme::TextStyle::Button)));
    line.draw(painter, (width() - line.width()) / 2.0,
              (height() - font.height()) / 2.0 + font.ascent());
    if (hasFocus() && showsFocus_)
        paintFocusRing(painter, QRectF(rect()));
}

void TextButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void TextButton::focusInEvent(QFocusEvent* event) {
    showsFocus_ = isKeyboardFocus(event->reason());
    QAbstractButton::focusInEvent(event);
}

void TextButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void TextButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

}  // namespace zephyrix
