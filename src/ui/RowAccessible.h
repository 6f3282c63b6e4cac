#pragma once

namespace zephyrix {

/// Makes a table known to assistive programs as a list, whose children are the rows on display and
/// the footer, and its cells as list items that can be pressed. Once for the process; further calls
/// do nothing.
void installRowAccessibility();

}  // namespace zephyrix
