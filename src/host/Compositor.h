#pragma once

namespace zephyrix {

/// Whether windows may be translucent now: always but on X11, where someone must see to it.
[[nodiscard]] bool isComposited();

}  // namespace zephyrix
