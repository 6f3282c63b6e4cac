#include "CommandTable.h"

#include <array>

#include "PlaceCommand.h"
#include "SkyCommand.h"
#include "SymbolCommand.h"
#include "UnitsCommand.h"

namespace zephyrix {

std::span<const Command> commands() {
    static const std::array table = {placeCommand, unitsCommand, skyCommand, symbolCommand};
    return table;
}

}  // namespace zephyrix
