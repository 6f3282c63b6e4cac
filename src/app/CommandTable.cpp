#include "CommandTable.h"

#include <array>

#include "PlaceCommand.h"
#include "SkyCommand.h"
#include "UnitsCommand.h"

namespace zephyrix {

std::span<const Command> commands() {
    static const std::array table = {placeCommand, unitsCommand, skyCommand};
    return table;
}

}  // namespace zephyrix
