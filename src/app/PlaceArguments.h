#pragma once

#include <QStringList>

#include "model/LocationResult.h"

namespace zephyrix {

/// The place that the arguments of "place set" mean: the uid of a place of the list alone, or
/// options that describe a place. Without --uid that is its coordinates, and without --zone it is
/// the one that the list knows for them. Raises CommandError when there is no such place.
[[nodiscard]] LocationResult placeFromArguments(const QStringList& arguments);

}  // namespace zephyrix
