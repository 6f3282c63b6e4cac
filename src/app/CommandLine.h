#pragma once

#include <QStringList>
#include <QTextStream>

#include "Command.h"

namespace zephyrix {

/// Runs one command line of `zephyrix`, given without the program's name: a command of the table,
/// an address that the desktop hands over ("zephyrix://widget"), --help or --version. Answers go to
/// `out`, the one line that tells why there is none goes to `err`.
[[nodiscard]] ExitCode runCommandLine(const QStringList& arguments, QTextStream& out,
                                      QTextStream& err);

}  // namespace zephyrix
