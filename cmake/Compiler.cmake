# How every target is compiled: the language, the warnings (all of them errors), the sanitizers, ccache.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

add_library(zephyrix_compiler INTERFACE)
target_compile_options(zephyrix_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wuseless-cast -Wduplicated-cond -Wlogical-op>
    # At -O3 GCC 12 takes the unused storage of an empty std::optional for one that is read.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-maybe-uninitialized>)
target_compile_definitions(zephyrix_compiler INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(ZEPHYRIX_SANITIZE)
    add_compile_options(-fsanitize=${ZEPHYRIX_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZEPHYRIX_SANITIZE})
endif()
