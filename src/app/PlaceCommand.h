#pragma once

#include <QStringList>
#include <QTextStream>

#include "Command.h"

namespace zephyrix {

/// "zephyrix place": the place for which the panel shows the weather.
extern const Command placeCommand;

/// Prints the chosen place; raises CommandError when there is none that can be used.
void printPlace(QTextStream& out);

}  // namespace zephyrix
