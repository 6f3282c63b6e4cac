#pragma once

#include <optional>
#include <stdexcept>

#include <QString>
#include <QStringList>

#include "Scenario.h"
#include "weather/Place.h"

namespace zephyrix {

/// What the command line of `zephyrix-feedd` asks for.
struct FeedOptions {
    bool help = false;
    bool version = false;
    int port = 0;  // 0 to 65535; 0: any free one
    const Scenario* scenario = nullptr;
    std::optional<Place> everyPlace{};  // the place of every id, where one was given
    bool endWithInput = false;

    /// Reads the command line, without the program's name; throws BadOption.
    [[nodiscard]] static FeedOptions from(const QStringList& arguments);
    [[nodiscard]] static QString helpText();
};

/// A command line that is not understood; what() is one line for the person who typed it.
class BadOption : public std::runtime_error {
  public:
    explicit BadOption(const QString& text) : std::runtime_error(text.toStdString()) {}
};

}  // namespace zephyrix
