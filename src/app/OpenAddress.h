#pragma once

#include <QString>
#include <QTextStream>

namespace zephyrix {

/// Whether an argument is an address that the desktop hands over, and no command.
[[nodiscard]] bool isAddress(const QString& argument);

/// Raises CommandError for an address that is neither "zephyrix://widget" nor "zephyrix://widget/",
/// exactly so.
void checkAddress(const QString& address);

/// Opens "zephyrix://widget", the address behind the panel's rows: shows the place and the units.
/// Raises CommandError for any other address.
void openAddress(const QString& address, QTextStream& out);

}  // namespace zephyrix
