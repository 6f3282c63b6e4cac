#pragma once

#include <QTextStream>

#include "Command.h"

namespace zephyrix {

/// "zephyrix units": the units in which the panel shows numbers.
extern const Command unitsCommand;

/// Prints the chosen units, one quantity a line.
void printUnits(QTextStream& out);

}  // namespace zephyrix
