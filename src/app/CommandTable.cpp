#include "CommandTable.h"

#include <array>

#include "PlaceCommand.h"
#include "SkyCommand.h"
#include "SourceCommand.h"
#include "SymbolCommand.h"
#include "UnitsCommand.h"
#include "WindowCommand.h"

namespace zephyrix {

std::span<const Command> commands() {
    static const std::array table = {placeCommand,  unitsCommand, sourceCommand,
                                     windowCommand, skyCommand,   symbolCommand};
    return table;
}

}  // namespace zephyrix
