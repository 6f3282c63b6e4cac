#pragma once

#include <QString>
#include <QStringView>

#include "Bundle.h"

namespace zephyrix {

/// The text for a key, which is the English text, in the user's language: localized(u"Quit").
[[nodiscard]] inline QString localized(QStringView key) {
    return Bundle::main().localizedString(QString::fromRawData(key.data(), key.size()));
}

}  // namespace zephyrix
