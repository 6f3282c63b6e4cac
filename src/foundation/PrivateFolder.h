#pragma once

#include <QString>

namespace zephyrix {

/// Makes a folder that only its owner may enter (mode 0700) where it is missing, and its parents.
/// One that is there already and belongs to this user is closed to others. Whether the folder can
/// be read then.
bool makePrivateFolder(const QString& path);

}  // namespace zephyrix
