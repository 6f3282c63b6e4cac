#include "Theme.h"

#include <algorithm>
#include <array>

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QScreen>
#include <QWidget>

#include "SharedFont.h"

namespace zephyrix {

namespace {

using Color = Theme::Color;
using Scheme = Theme::Scheme;
using TextStyle = Theme::TextStyle;

struct ColorRow {
    Color color;
    QRgb light;
    QRgb dark;
};

constexpr QRgb argb(unsigned alpha, unsigned red, unsigned green, unsigned blue) {
    return (alpha << 24U) | (red << 16U) | (green << 8U) | blue;
}

constexpr std::array colorTable = {
    ColorRow{Color::PrimaryText, argb(255, 16, 22, 34), argb(255, 255, 255, 255)},
    ColorRow{Color::SecondaryText, argb(255, 74, 82, 98), argb(255, 206, 213, 224)},
    ColorRow{Color::SurfaceTop, argb(232, 252, 253, 255), argb(220, 30, 38, 54)},
    ColorRow{Color::SurfaceBottom, argb(226, 244, 246, 250), argb(226, 19, 24, 35)},
    ColorRow{Color::SurfaceEdge, argb(150, 255, 255, 255), argb(26, 255, 255, 255)},
    ColorRow{Color::Hairline, argb(36, 16, 22, 34), argb(34, 255, 255, 255)},
    ColorRow{Color::FocusRing, argb(255, 26, 104, 214), argb(255, 128, 184, 255)},
    ColorRow{Color::WindRing, argb(255, 16, 22, 34), argb(255, 255, 255, 255)},
    ColorRow{Color::VibrancyShade, argb(30, 16, 22, 34), argb(0, 0, 0, 0)},
    ColorRow{Color::VibrancyContent, argb(255, 0, 0, 0), argb(64, 0, 0, 0)},
    ColorRow{Color::HoverShade, argb(12, 16, 22, 34), argb(14, 255, 255, 255)},
    ColorRow{Color::Shadow, argb(52, 10, 16, 30), argb(110, 0, 0, 0)},
};

struct TextStyleRow {
    TextStyle style;
    const char* name;
    double size;  // points of the panel
    QFont::Weight weight;
    Color color;
    bool tabular;  // figures of one width: for numbers below or beside each other
};

constexpr std::array textStyleTable = {
    TextStyleRow{TextStyle::Title, "title", 15.0, QFont::Medium, Color::PrimaryText, false},
    TextStyleRow{TextStyle::Time, "time", 12.0, QFont::Normal, Color::SecondaryText, false},
    TextStyleRow{TextStyle::Strong, "strong", 34.0, QFont::Light, Color::PrimaryText, false},
    TextStyleRow{TextStyle::Words, "words", 12.5, QFont::Normal, Color::PrimaryText, false},
    TextStyleRow{TextStyle::Value, "value", 15.0, QFont::Medium, Color::PrimaryText, true},
    TextStyleRow{TextStyle::Unit, "unit", 10.5, QFont::Normal, Color::SecondaryText, true},
    TextStyleRow{TextStyle::WindSpeed, "windSpeed", 16.0, QFont::Medium, Color::PrimaryText, false},
    TextStyleRow{TextStyle::Day, "day", 11.5, QFont::Medium, Color::SecondaryText, false},
    TextStyleRow{TextStyle::High, "high", 13.0, QFont::Medium, Color::PrimaryText, true},
    TextStyleRow{TextStyle::Low, "low", 13.0, QFont::Normal, Color::SecondaryText, true},
    TextStyleRow{TextStyle::Button, "button", 12.5, QFont::Medium, Color::SecondaryText, false},
    TextStyleRow{TextStyle::Message, "message", 14.0, QFont::Normal, Color::PrimaryText, false},
};

const TextStyleRow& rowOf(TextStyle style) {
    return *std::ranges::find(textStyleTable, style, &TextStyleRow::style);
}

std::optional<Scheme>& givenScheme() {
    static std::optional<Scheme> scheme;
    return scheme;
}

// Inter reads best with Latin and Cyrillic at these sizes; without it the desktop's own font is
// used.
QString fontFamily() {
    const auto inter = QStringLiteral("Inter");
    static const bool hasInter = SharedFont::isInstalled(inter);
    return hasInter ? inter : QApplication::font().family();
}

}  // namespace

Theme::Scheme Theme::scheme() {
    if (givenScheme())
        return *givenScheme();
    const QColor window = QApplication::palette().color(QPalette::Window);
    return window.lightness() < 128 ? Scheme::Dark : Scheme::Light;
}

void Theme::setScheme(std::optional<Scheme> scheme) {
    givenScheme() = scheme;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(widget, &change);
        widget->update();
    }
}

QColor Theme::color(Color color) {
    return Theme::color(color, scheme());
}

QColor Theme::color(Color color, Scheme scheme) {
    const auto& row = *std::ranges::find(colorTable, color, &ColorRow::color);
    return QColor::fromRgba(scheme == Scheme::Dark ? row.dark : row.light);
}

QFont Theme::font(TextStyle style) {
    const TextStyleRow& row = rowOf(style);
    QFont font(fontFamily());
    font.setPixelSize(scaled(row.size));
    font.setWeight(row.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Theme::Color Theme::textColor(TextStyle style) {
    return rowOf(style).color;
}

bool Theme::hasTabularFigures(TextStyle style) {
    return rowOf(style).tabular;
}

std::optional<Theme::TextStyle> Theme::textStyleNamed(const QString& name) {
    for (const TextStyleRow& row : textStyleTable)
        if (name == QLatin1String(row.name))
            return row.style;
    return std::nullopt;
}

double Theme::textScale() {
    constexpr double leastUsual = 9.0;  // point
    constexpr double mostUsual = 11.0;
    constexpr double usualDensity = 96.0;  // dots an inch; desktops also scale texts by it
    const double density = QGuiApplication::primaryScreen()->logicalDotsPerInch() / usualDensity;
    const double size = QApplication::font().pointSizeF() * density;
    if (size <= 0.0)
        return 1.0;
    return std::clamp(size / std::clamp(size, leastUsual, mostUsual), 0.9, 2.0);
}

int Theme::scaled(double points) {
    return qRound(points * textScale());
}

}  // namespace zephyrix
