#pragma once

namespace zephyrix::testing {

/// Whether this build runs under the thread sanitizer. QProcess lets its child run on the parent's
/// memory until it becomes another program; the sanitizer loses the starting thread's locks there
/// and takes what happens under them afterwards for a race, in fifteen correct lines as in a
/// program. So a program that starts another one cannot be judged under it.
#ifdef __SANITIZE_THREAD__
constexpr bool threadSanitized = true;
#else
constexpr bool threadSanitized = false;
#endif

}  // namespace zephyrix::testing
