#pragma once

#include <cstdint>
#include <optional>

#include <QColor>
#include <QFont>
#include <QString>

namespace zephyrix {

/// The one place of colours, fonts and measures. Colours follow the desktop's light or dark palette
/// and fonts its font and text size, as they are when asked; nothing is kept, so a change of the
/// desktop shows with the next paint. Main thread, with a QApplication.
class Theme {
  public:
    enum class Scheme : std::uint8_t { Light, Dark };

    enum class Color : std::uint8_t {
        PrimaryText,
        SecondaryText,
        SurfaceTop,     // the panel's surface is graded from here
        SurfaceBottom,  // to here; both are translucent
        SurfaceEdge,    // one thin line around the surface
        Hairline,
        FocusRing,
        WindRing,
        VibrancyShade,    // below the content of a VisualEffectView
        VibrancyContent,  // its alpha weakens that content
        HoverShade,
        Shadow,
    };

    /// What a text is for; the name is what a layout writes into the property "textStyle".
    enum class TextStyle : std::uint8_t {
        Title,      // "title": the place
        Time,       // "time": the observation time
        Strong,     // "strong": the one strong number
        Words,      // "words": the weather in words
        Value,      // "value": a number of the grid
        Unit,       // "unit": its unit
        WindSpeed,  // "windSpeed": the number in the ring
        Day,        // "day": a forecast day's name
        High,       // "high"
        Low,        // "low"
        Button,     // "button"
        Message,    // "message"
    };

    [[nodiscard]] static Scheme scheme();
    /// For pictures and for a host that knows more than the palette says; nothing follows the
    /// palette again. Tells all widgets.
    static void setScheme(std::optional<Scheme> scheme);

    [[nodiscard]] static QColor color(Color color);
    /// As color() would give it under another scheme.
    [[nodiscard]] static QColor color(Color color, Scheme scheme);

    [[nodiscard]] static QFont font(TextStyle style);
    [[nodiscard]] static Color textColor(TextStyle style);
    [[nodiscard]] static bool hasTabularFigures(TextStyle style);
    /// Nothing for a name that no style has.
    [[nodiscard]] static std::optional<TextStyle> textStyleNamed(const QString& name);
    /// The desktop's text size against the usual one: 1.0 for 9 to 11 point, from 0.9 to 2.0. The
    /// whole panel has that scale: texts and measures, so that the one always fits the other. A
    /// point of the panel is so many points of the screen.
    [[nodiscard]] static double textScale();
    /// Points of the panel in whole points of the screen.
    [[nodiscard]] static int scaled(double points);

    static constexpr double surfaceRadius = 18.0;  // points
    static constexpr int fadeDuration = 250;       // milliseconds
};

}  // namespace zephyrix
