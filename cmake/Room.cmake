# A room is one folder of src/ and one static library. Its headers are found only by the targets that
# link it, so that an include against the arrows of docs/architecture.md does not compile.
#
#   zephyrix_room(<folder> SOURCES <files...> USES <libraries and rooms...> [PRELUDE <name>])
#
# Include a header as "folder/Header.h". Its files begin with the prelude "core" unless one is named.
function(zephyrix_room folder)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "PRELUDE" "SOURCES;USES")
    set(target zephyrix_${folder})
    add_library(${target} STATIC ${room_SOURCES})
    add_library(Zephyrix::${folder} ALIAS ${target})
    zephyrix_own_include_root(${folder} root)
    target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${root}>")
    target_link_libraries(${target}
        PUBLIC ${room_USES} PRIVATE "$<BUILD_INTERFACE:zephyrix_compiler>")
    if(NOT room_PRELUDE)
        set(room_PRELUDE core)
    endif()
    zephyrix_begin_with(${target} ${room_PRELUDE})
endfunction()

# Makes a folder that holds nothing but a link to src/<folder>, and gives its path back.
function(zephyrix_own_include_root folder result)
    set(root "${CMAKE_BINARY_DIR}/rooms/${folder}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/${folder}" "${root}/${folder}" SYMBOLIC)
    set(${result} "${root}" PARENT_SCOPE)
endfunction()

# A program of the project: what a user starts, with the resources of resources/ inside. It knows its
# version as ZEPHYRIX_VERSION.
#
#   zephyrix_program(<name> SOURCES <files...> USES <libraries and rooms...>)
function(zephyrix_program name)
    cmake_parse_arguments(PARSE_ARGV 1 program "" "" "SOURCES;USES")
    add_executable(${name} ${program_SOURCES})
    target_link_libraries(${name} PRIVATE ${program_USES} zephyrix_compiler)
    target_compile_definitions(${name} PRIVATE ZEPHYRIX_VERSION="${PROJECT_VERSION}")
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()

# A part of a program that it loads when it first needs it, with the libraries that only this part
# needs. It gives what it marks by Q_DECL_EXPORT and nothing else, and knows its version.
#
#   zephyrix_module(<name> SOURCES <files...> USES <libraries and rooms...>)
#
# Programs find it in the folder ZEPHYRIX_MODULES_DIR as seen from their own. It lies two folders below
# the libraries' one: a package with any nearer makes the loader read its folders anew when installed.
file(RELATIVE_PATH ZEPHYRIX_MODULES_DIR
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}/zephyrix/modules")
function(zephyrix_module name)
    cmake_parse_arguments(PARSE_ARGV 1 module "" "" "SOURCES;USES")
    add_library(${name} MODULE ${module_SOURCES})
    target_link_libraries(${name} PRIVATE ${module_USES} zephyrix_compiler)
    target_compile_definitions(${name} PRIVATE ZEPHYRIX_VERSION="${PROJECT_VERSION}")
    # What comes from the rooms' libraries stays inside, too: the program has its own of it.
    target_link_options(${name} PRIVATE LINKER:--exclude-libs,ALL LINKER:--as-needed)
    set_target_properties(${name} PROPERTIES
        PREFIX ""
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${ZEPHYRIX_MODULES_DIR}")
    install(TARGETS ${name} LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/zephyrix/modules")
endfunction()

# The tests of a room: one program, one entry of ctest. It links that room and nothing above it.
#
#   zephyrix_test(<name> SOURCES <files...> USES <libraries and rooms...> [PRELUDE <name>])
#
# Its files find their reference data below TEST_DATA_DIR, the programs in PROGRAM_DIR, and modules in
# MODULES_DIR as seen from there. They begin with the prelude "test" unless one is named.
function(zephyrix_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "PRELUDE" "SOURCES;USES")
    add_executable(${name} ${test_SOURCES})
    target_link_libraries(${name} PRIVATE zephyrix_test_support ${test_USES} zephyrix_compiler)
    target_compile_definitions(${name} PRIVATE
        TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
        PROGRAM_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
        MODULES_DIR="${ZEPHYRIX_MODULES_DIR}"
        SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    if(NOT test_PRELUDE)
        set(test_PRELUDE test)
    endif()
    zephyrix_begin_with(${name} ${test_PRELUDE})
    add_test(NAME ${name} COMMAND ${name})
    # The system's Qt is built without the thread sanitizer, which cannot see how its threads hand over:
    # what other libraries call is left out. tests/support/ThreadSanitizer.h tells what it cannot judge.
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "TSAN_OPTIONS=halt_on_error=1:ignore_noninstrumented_modules=1:die_after_fork=0")
endfunction()
