#pragma once

#include <cstdint>
#include <stdexcept>

#include <QString>

#include "widget/TodayViewController.h"

namespace zephyrix {

/// The observation row as one line for somebody else's bar: "waybar" (a JSON object), "polybar", or
/// a text with fields, such as "{symbol} {temperature}". docs/bars.md tells them all.
class BarFormat {
  public:
    /// Raised by the constructor: one line for the person who typed the format.
    class Error : public std::runtime_error {
      public:
        explicit Error(const QString& text) : std::runtime_error(text.toStdString()) {}
        [[nodiscard]] QString text() const { return QString::fromUtf8(what()); }
    };

    /// Throws Error for a field that there is not, and for a brace without its other.
    explicit BarFormat(const QString& format);

    /// After a layout pass; without a line break. Empty where there is no weather to show.
    [[nodiscard]] QString line(TodayViewController& controller) const;

  private:
    enum class Kind : std::uint8_t { Fields, Polybar, Waybar };

    Kind kind_;
    QString fields_;
};

}  // namespace zephyrix
