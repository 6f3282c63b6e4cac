# The same source gives the same bytes, in whatever folder and at whatever time it is built.

# What is built for installation bears no path of the machine that built it.
add_compile_options(
    "$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>"
    "$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>")

# From version 2 on, Qt's resources carry the time at which each of their files was made.
set(ZEPHYRIX_RCC_OPTIONS --format-version 1)
