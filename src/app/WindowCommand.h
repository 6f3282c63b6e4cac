#pragma once

#include <QStringList>
#include <QTextStream>

#include "Command.h"

namespace zephyrix {

/// "zephyrix window": the settings in a window, or as a picture of it. In the table of commands it
/// only tells that there is no display; a program with one calls runWindow() instead.
extern const Command windowCommand;

/// Whether these arguments, without the program's name, want a window: the command itself, and an
/// address from a desktop, which has nobody who would read an answer.
[[nodiscard]] bool wantsWindow(const QStringList& arguments);

/// Shows the window until it is closed, or makes a picture of it. Makes its own QApplication from
/// the program's arguments.
[[nodiscard]] int runWindow(int argc, char** argv, QTextStream& err);

}  // namespace zephyrix
