# Pictures drawn as SVG fragments, put together by a table and rendered by the build. Nothing of it is
# committed, and nothing of it needs a display.
#
#   zephyrix_artwork(<name> TABLE <file> FRAGMENTS <file> SIZE <pixels> INTO <folder>)
#
# fills <folder> with the PNG files of the table's images, and sets <name>_STAMP in the caller to the
# file that says that they are up to date.
set(symbol_scripts "${CMAKE_SOURCE_DIR}/tools/symbols")
set(symbol_arrangements "${CMAKE_SOURCE_DIR}/resources/symbols/arrangements.tsv")

function(zephyrix_artwork name)
    cmake_parse_arguments(PARSE_ARGV 1 art "" "TABLE;FRAGMENTS;SIZE;INTO" "")
    set(drawings "${CMAKE_BINARY_DIR}/artwork/${name}")
    set(stamp "${CMAKE_BINARY_DIR}/artwork/${name}.stamp")
    add_custom_command(
        OUTPUT "${stamp}"
        COMMAND "${CMAKE_COMMAND}" -E rm -rf "${drawings}" "${art_INTO}"
        COMMAND Python3::Interpreter -B "${symbol_scripts}/compose.py"
                "${art_TABLE}" "${symbol_arrangements}" "${art_FRAGMENTS}" "${drawings}"
        COMMAND symbols-render "${drawings}" "${art_INTO}" ${art_SIZE}
        COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
        DEPENDS "${symbol_scripts}/compose.py" "${symbol_scripts}/tables.py" symbols-render
                "${art_TABLE}" "${symbol_arrangements}" "${art_FRAGMENTS}"
        COMMENT "Drawing ${name}"
        VERBATIM)
    set(${name}_STAMP "${stamp}" PARENT_SCOPE)
endfunction()
