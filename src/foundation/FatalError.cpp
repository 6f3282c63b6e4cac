#include "FatalError.h"

#include <cstdlib>

#include "Log.h"

namespace zephyrix {

void fatalError(const QString& line) {
    logLine(QStringLiteral("fatal error: ") + line);
    std::abort();
}

}  // namespace zephyrix
