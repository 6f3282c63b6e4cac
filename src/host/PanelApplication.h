#pragma once

#include <QTextStream>

#include "PanelOptions.h"

namespace zephyrix {

/// Runs the panel: in a window until it is closed, or, where a report is asked for, without
/// appearing on a screen until the fetch that it starts has ended. Reports go to `out`. The
/// process's exit status: 0 done, 1 could not be done.
[[nodiscard]] int runPanel(const PanelOptions& options, char* programName, QTextStream& out);

}  // namespace zephyrix
