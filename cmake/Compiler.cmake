# How every target is compiled: the language, the warnings (all of them errors), ccache, and either the
# sanitizers or the hardening.
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

if(ZEPHYRIX_FUZZ)
    # The rooms count which of their branches an input takes; only the fuzz targets link libFuzzer.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(ZEPHYRIX_SANITIZE)
    add_compile_options(-fsanitize=${ZEPHYRIX_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZEPHYRIX_SANITIZE})
    return()
endif()

# What an attacker would need is taken from every program: fixed addresses, a writable table of
# functions, an unguarded or executable stack. In daily builds too, so that their tests show it. The
# sanitizers find more, and would be in the way of it.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(ZEPHYRIX_HARDENING -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    list(APPEND ZEPHYRIX_HARDENING -fcf-protection)
endif()
# The checks of buffer sizes need an optimiser.
string(TOUPPER "CMAKE_CXX_FLAGS_${CMAKE_BUILD_TYPE}" flags_of_this_build)
if("${CMAKE_CXX_FLAGS} ${${flags_of_this_build}}" MATCHES "-O[123s]")
    list(APPEND ZEPHYRIX_HARDENING -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
endif()
add_compile_options(${ZEPHYRIX_HARDENING})
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
