# A prelude is a header of headers that nearly every file includes anyway, parsed once instead of in
# each file. Files go on to include what they use: builds without preludes (release, and by clang)
# prove that they do.
#
#   zephyrix_prelude(<name> USES <libraries...>)   makes one of cmake/prelude/<name>.h
#   zephyrix_begin_with(<target> <name>)           lets the target's files begin with it
#
# The header is not named by its path, so that tools which cannot read GCC's parsed form (clang-tidy)
# find the header itself, and ccache sees its text.
option(ZEPHYRIX_PRELUDE "Parse the most used headers once" OFF)
if(ZEPHYRIX_PRELUDE AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    message(STATUS "Preludes are made for GCC only: building without")
    set(ZEPHYRIX_PRELUDE OFF)
endif()

function(zephyrix_prelude name)
    if(NOT ZEPHYRIX_PRELUDE)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 prelude "" "" "USES")
    set(header "${CMAKE_SOURCE_DIR}/cmake/prelude/${name}.h")
    set(target zephyrix_prelude_${name})
    set_source_files_properties("${header}" PROPERTIES
        LANGUAGE CXX COMPILE_OPTIONS "-x;c++-header")
    add_library(${target} OBJECT "${header}")
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${target} PRIVATE ${prelude_USES} zephyrix_compiler)
    if(CCACHE_PROGRAM)
        set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros;${CCACHE_PROGRAM}")
    endif()

    # Where GCC looks for it: beside the header, under the header's name.
    set(folder "${CMAKE_BINARY_DIR}/prelude/${name}")
    file(GENERATE OUTPUT "${folder}/zephyrix_prelude_${name}.h" CONTENT "#include \"${header}\"\n")
    set(parsed "${folder}/zephyrix_prelude_${name}.h.gch")
    add_custom_command(OUTPUT "${parsed}"
        COMMAND "${CMAKE_COMMAND}" -E copy $<TARGET_OBJECTS:${target}> "${parsed}"
        DEPENDS ${target} $<TARGET_OBJECTS:${target}>
        VERBATIM)
    add_custom_target(${target}_parsed DEPENDS "${parsed}")
endfunction()

function(zephyrix_begin_with target name)
    if(NOT ZEPHYRIX_PRELUDE)
        return()
    endif()
    target_include_directories(${target} PRIVATE "${CMAKE_BINARY_DIR}/prelude/${name}")
    target_compile_options(${target} PRIVATE "SHELL:-include zephyrix_prelude_${name}.h")
    add_dependencies(${target} zephyrix_prelude_${name}_parsed)
endfunction()
