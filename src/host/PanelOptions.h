#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>

#include <QString>
#include <QStringList>

#include "FeedAddress.h"

namespace zephyrix {

/// What the command line of `zephyrix-panel` asks for.
struct PanelOptions {
    enum class Scheme : std::uint8_t { Desktop, Light, Dark };

    bool help = false;
    bool version = false;
    bool window = false;              // a window also where there is a tray
    bool text = false;                // print what the rows show, for people
    bool json = false;                // the same for programs
    bool expanded = false;            // begin with the forecast row
    bool paintTime = false;           // print how long it took until the panel was painted
    std::optional<QString> format;    // print one line for a bar; see BarFormat
    bool follow = false;              // and print it anew when it has changed
    std::optional<QString> snapshot;  // the picture file to write
    double width = 440.0;             // of the panel, in points
    std::optional<double> scale;      // device pixels a point; the screen's unless given
    Scheme scheme = Scheme::Desktop;
    FeedChoice feed;

    /// Whether the panel reports and ends, without appearing on a screen.
    [[nodiscard]] bool reportsOnly() const noexcept { return text || json || format || snapshot; }

    /// Raised by parse(): one line for the person who typed it.
    class Error : public std::runtime_error {
      public:
        explicit Error(const QString& text) : std::runtime_error(text.toStdString()) {}
        [[nodiscard]] QString text() const { return QString::fromUtf8(what()); }
    };

    /// From the arguments, the program's name first. Throws Error for an unknown option, a missing
    /// value, a value out of range or an address that no feed can have.
    [[nodiscard]] static PanelOptions parse(const QStringList& arguments);
    [[nodiscard]] static QString helpText();
};

}  // namespace zephyrix
