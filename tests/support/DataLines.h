#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace zephyrix::testing {

/// The fields of each line of a reference table below tests/data, which are separated by tabs.
/// Empty lines and lines that begin with "#" are left out. Ends the test program when the file is
/// missing or has no such line, so that no check passes for lack of cases.
[[nodiscard]] QVector<QStringList> dataLines(const QString& path);

}  // namespace zephyrix::testing
