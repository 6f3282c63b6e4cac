#include "OpenAddress.h"

#include <QUrl>

#include "Command.h"
#include "PlaceCommand.h"
#include "UnitsCommand.h"

namespace zephyrix {

bool isAddress(const QString& argument) {
    return argument.startsWith(QLatin1String("zephyrix:"), Qt::CaseInsensitive) ||
           argument.contains(QLatin1String("://"));
}

void checkAddress(const QString& address) {
    // As an address without a path may come with one, some desktops add the slash.
    const QUrl url = QUrl(address, QUrl::StrictMode).adjusted(QUrl::StripTrailingSlash);
    if (url != QUrl(QStringLiteral("zephyrix://widget")) &&
        url != QUrl(QStringLiteral("zephyrix://widget/")))
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
