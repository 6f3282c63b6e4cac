#pragma once

#include <optional>
#include <stdexcept>

#include <QString>
#include <QStringList>

#include "Bridge.h"
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
    std::optional<BridgeSettings> bridge{};  // nothing: demonstration weather

    /// Reads the command line, without the program's name, and for what it leaves open on the
    /// source of the weather the shared settings; throws BadOption.
    [[nodiscard]] static FeedOptions from(const QStringList& arguments);
    [[nodiscard]] static QString helpText();
};

/// A command line that is not understood; what() is one line for the person who typed it.
class BadOption : public std::runtime_error {
  public:
    explicit BadOption(const QString& text) : std::runtime_error(text.toStdString()) {}
};

}  // namespace zephyrix
