#pragma once

#include <QString>
#include <QStringView>

#include "foundation/Bundle.h"

namespace zephyrix {

/// The translation of a key that lives as long as the program, as a string literal does.
[[nodiscard]] inline QString localized(QStringView key) {
    return Bundle::main().localizedString(QString::fromRawData(key.data(), key.size()));
}

}  // namespace zephyrix
