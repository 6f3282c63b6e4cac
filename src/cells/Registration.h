#pragma once

namespace zephyrix {

/// Makes the cells and the views inside them known to layouts, before the first layout is loaded.
void registerCells();

}  // namespace zephyrix
