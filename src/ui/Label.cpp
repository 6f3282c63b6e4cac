#include "Label.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include "TextLine.h"
#include "foundation/FatalError.h"

namespace zephyrix {

Label::Label(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::NoFocus);
}

void Label::setTextStyle(Theme::TextStyle style) {
    style_ = style;
    updateGeometry();
    update();
}

void Label::setTextStyleName(const QString& name) {
    const auto style = Theme::textStyleNamed(name);
    if (!style)
        fatalError(QStringLiteral("a layout asks for the unknown text style \"%1\"").arg(name));
    styleName_ = name;
    setTextStyle(*style);
}

void Label::setBaseline(int points) {
    baseline_ = points;
    update();
}

void Label::setMinimumScale(double scale) {
    minimumScale_ = scale;
    update();
}

void Label::setTextColor(const QColor& color) {
    givenColor_ = color;
    update();
}

void Label::setTextFont(const QFont& font) {
    givenFont_ = font;
    hasGivenFont_ = true;
    updateGeometry();
    update();
}

QColor Label::textColor() const {
    return givenColor_.isValid() ? givenColor_ : Theme::color(Theme::textColor(style_));
}

void Label::setBackgroundColor(const QColor& color) {
    backgroundColor_ = color;
    update();
}

QFont Label::styledFont() const {
    return hasGivenFont_ ? givenFont_ : Theme::font(style_);
}

QFont Label::fittedFont() const {
    QFont font = styledFont();
    if (minimumScale_ >= 1.0 || wordWrap())
        return font;
    const double natural = TextLine(text(), font).width();
    if (natural <= width())
        return font;
    const double scale = std::max(minimumScale_, width() / natural);
    font.setPixelSize(std::max(1, static_cast<int>(std::floor(font.pixelSize() * scale))));
    return font;
}

QStringList Label::linesIn(const QFont& font) const {
    if (!wordWrap())
        return {TextLine::elided(text(), font, width())};
    const QFontMetricsF metrics(font);
    const auto room = std::max(1, static_cast<int>(height() / metrics.lineSpacing()));
    QTextLayout layout(text(), font);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width());
        const bool last = lines.size() + 1 == room;
        const QString rest = text().mid(line.textStart());
        lines << (last ? TextLine::elided(rest, font, width())
                       : rest.left(line.textLength()).trimmed());
        if (last)
            break;
    }
    layout.endLayout();
    return lines;
}

QStringList Label::displayedLines() const {
    return linesIn(fittedFont());
}

bool Label::isTruncated() const {
    const QStringList lines = displayedLines();
    return !lines.isEmpty() && lines.last().endsWith(QChar(0x2026)) &&
           !text().endsWith(QChar(0x2026));
}

QSize Label::sizeHint() const {
    const QFont font = styledFont();
    const QFontMetricsF metrics(font);
    return {static_cast<int>(std::ceil(TextLine(text(), font).width())),
            static_cast<int>(std::ceil(metrics.height()))};
}

// A label may always become narrower: it elides.
QSize Label::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

double Label::firstBaseline(const QFont& font, qsizetype lineCount) const {
    const QFontMetricsF metrics(font);
    if (baseline_ >= 0)
        return height() - baseline_;
    const double block =
        metrics.height() + static_cast<double>(lineCount - 1) * metrics.lineSpacing();
    if (alignment() & Qt::AlignTop)
        return metrics.ascent();
    if (alignment() & Qt::AlignBottom)
        return height() - block + metrics.ascent();
    return (height() - block) / 2.0 + metrics.ascent();
}

void Label::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (backgroundColor_.alpha() > 0)
        painter.fillRect(rect(), backgroundColor_);
    const QFont font = fittedFont();
    const QStringList lines = linesIn(font);
    painter.setPen(textColor());
    const auto side = QStyle::visualAlignment(layoutDirection(), alignment());
    double baseline = firstBaseline(font, lines.size());
    for (const QString& text : lines) {
        const TextLine line(text, font);
        double left = 0.0;
        if (side & Qt::AlignRight)
            left = width() - line.width();
        else if (side & Qt::AlignHCenter)
            left = (width() - line.width()) / 2.0;
        line.draw(painter, left, baseline);
        baseline += QFontMetricsF(font).lineSpacing();
    }
}

bool Label::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           isTruncated() ? text() : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

void Label::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange ||
        event->type() == QEvent::FontChange) {
        updateGeometry();
        update();
    }
}

}  // namespace zephyrix
