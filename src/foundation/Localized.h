#pragma once

#include <QString>
#include <QStringView>

#include "Bundle.h"

namespace zephyrix {

/// The text for a key, which is the English text, in the user's language: localized(u"Quit").
[[nodiscard]] inline QString localized(QStringView key) {
    return Bundle::main().localizedString(QString::fromRawData(key.data(), key.size()));
}

/// The same for a text that goes with a number: its form for the number as it is shown.
/// localized(u"knots", u"1") is "knot".
[[nodiscard]] inline QString localized(QStringView key, QStringView shownNumber) {
    return Bundle::main().localizedString(QString::fromRawData(key.data(), key.size()),
                                          shownNumber);
}

}  // namespace zephyrix
