#include "Label.h"

#include <algorithm>
#include <cmath>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "foundation/FatalError.h"

namespace zephyrix {

namespace {

double widestLine(const QString& text, const SharedFont& font, TextLine::Figures figures) {
    double widest = 0.0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        widest = std::max(widest, TextLine(line, font, figures).width());
    return widest;
}

}  // namespace

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

TextLine::Figures Label::figures() const {
    return Theme::hasTabularFigures(style_) ? TextLine::Figures::Tabular
                                            : TextLine::Figures::Proportional;
}

SharedFont Label::fittedFont(double width) const {
    QFont font = styledFont();
    if (minimumScale_ >= 1.0)
        return SharedFont(font);
    // Wrapped text needs room for its longest word only.
    const double natural =
        wordWrap() ? widestLine(text().simplified().replace(QLatin1Char(' '), QLatin1Char('\n')),
                                SharedFont(font), figures())
                   : widestLine(text(), SharedFont(font), figures());
    if (natural <= width)
        return SharedFont(font);
    const double scale = std::max(minimumScale_, width / natural);
    font.setPixelSize(std::max(1, static_cast<int>(std::floor(font.pixelSize() * scale))));
    return SharedFont(font);
}

QStringList Label::linesIn(const SharedFont& font) const {
    QStringList lines;
    for (const QString& paragraph : text().split(QLatin1Char('\n')))
        if (wordWrap())
            for (const QString& line : font.wrapped(paragraph, width()))
                lines << TextLine::elided(line, font, figures(), width());
        else
            lines << TextLine::elided(paragraph, font, figures(), width());
    const auto room = std::max<qsizetype>(1, static_cast<qsizetype>(height() / font.lineSpacing()));
    if (wordWrap() && lines.size() > room) {
        const QString rest = lines.mid(room - 1).join(QLatin1Char(' '));
        lines = lines.mid(0, room - 1);
        lines << TextLine::elided(rest, font, figures(), width());
    }
    return lines;
}

QStringList Label::displayedLines() const {
    return linesIn(fittedFont(width()));
}

bool Label::isTruncated() const {
    const QStringList lines = displayedLines();
    return !lines.isEmpty() && lines.last().endsWith(QChar(0x2026)) &&
           !text().endsWith(QChar(0x2026));
}

void Label::setExactFrame(const QRectF& frame) {
    exactFrame_ = frame;
    setGeometry(frame.toRect());
}

QSize Label::sizeHint() const {
    const SharedFont font(styledFont());
    const auto breaks = static_cast<double>(text().count(QLatin1Char('\n')));
    const int gap = text().isEmpty() ? 0 : std::max(0, indent());
    return {static_cast<int>(std::ceil(widestLine(text(), font, figures()))) + gap,
            static_cast<int>(std::ceil(font.height() + breaks * font.lineSpacing()))};
}

int Label::heightForWidth(int width) const {
    if (!wordWrap())
        return -1;
    const SharedFont font = fittedFont(width);
    qsizetype lines = 0;
    for (const QString& paragraph : text().split(QLatin1Char('\n')))
        lines += font.wrapped(paragraph, width).size();
    return static_cast<int>(
        std::ceil(font.height() + static_cast<double>(lines - 1) * font.lineSpacing()));
}

// A label may always become narrower: it elides.
QSize Label::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

double Label::firstBaseline(const SharedFont& font, qsizetype lineCount) const {
    if (baseline_ >= 0)
        return height() - baseline_;
    const double block = font.height() + static_cast<double>(lineCount - 1) * font.lineSpacing();
    if (alignment() & Qt::AlignTop)
        return font.ascent();
    if (alignment() & Qt::AlignBottom)
        return height() - block + font.ascent();
    return (height() - block) / 2.0 + font.ascent();
}

void Label::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (backgroundColor_.alpha() > 0)
        painter.fillRect(rect(), backgroundColor_);
    const SharedFont font = fittedFont(width());
    const QStringList lines = linesIn(font);
    painter.setPen(textColor());
    const auto side = QStyle::visualAlignment(layoutDirection(), alignment());
    double baseline = firstBaseline(font, lines.size());
    for (const QString& text : lines) {
        const TextLine line(text, font, figures());
        double left = 0.0;
        if (side & Qt::AlignRight)
            left = width() - line.width();
        else if (side & Qt::AlignHCenter)
            left = (width() - line.width()) / 2.0;
        line.draw(painter, left, baseline);
        baseline += font.lineSpacing();
    }
}

bool Label::event(QEvent* event) {
    // Where nothing is cut off, the view around it may have something to tell.
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isTruncated()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
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
