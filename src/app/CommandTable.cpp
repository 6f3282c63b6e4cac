#include "CommandTable.h"

namespace zephyrix {

std::span<const Command> commands() {
    return {};
}

}  // namespace zephyrix
