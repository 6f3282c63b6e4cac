#pragma once

#include <cstddef>
#include <cstdint>

#include <QByteArray>
#include <QString>

#include "foundation/FatalError.h"

namespace zephyrix::fuzz {

/// The home directory of this run, where the panel's settings and caches are, too. Removed when the
/// program ends.
[[nodiscard]] QString home();

/// An input in the type that the panel reads.
[[nodiscard]] inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// Stops the run where a promise is broken; the phrase says which one was.
inline void expect(bool kept, const char* promise) {
    if (!kept)
        fatalError(QStringLiteral("broken promise: ") + QLatin1String(promise));
}

/// Puts this into a file, which is made anew.
void writeFile(const QString& path, const QByteArray& bytes);

}  // namespace zephyrix::fuzz
