#include "OpenAddress.h"

#include <algorithm>
#include <array>

#include "Command.h"
#include "PlaceCommand.h"
#include "UnitsCommand.h"

namespace zephyrix {

namespace {

// Byte for byte, whatever else would mean the same. Some desktops add the slash.
constexpr std::array forms{"zephyrix://widget", "zephyrix://widget/"};

}  // namespace

bool isAddress(const QString& argument) {
    return argument.startsWith(QLatin1String("zephyrix:"), Qt::CaseInsensitive) ||
           argument.contains(QLatin1String("://"));
}

void checkAddress(const QString& address) {
    const bool isOwn = std::any_of(forms.begin(), forms.end(), [&](const char* form) {
        return address == QLatin1String(form);
    });
    if (!isOwn)
        throw CommandError::usage(
            QStringLiteral("\"%1\" is no address of this program").arg(address));
}

void openAddress(const QString& address, QTextStream& out) {
    checkAddress(address);
    printPlace(out);
    out << '\n';
    printUnits(out);
}

}  // namespace zephyrix
