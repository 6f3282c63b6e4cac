# The rooms that other projects may use: installed with their headers, and found by
# find_package(Zephyrix) as Zephyrix::<room>.
set(ZEPHYRIX_HEADERS_DIR "${CMAKE_INSTALL_INCLUDEDIR}/zephyrix")
set(ZEPHYRIX_CONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Zephyrix")

# zephyrix_export(<folder...>): rooms, and libraries of resources.
function(zephyrix_export)
    foreach(folder IN LISTS ARGN)
        set_target_properties(zephyrix_${folder} PROPERTIES EXPORT_NAME ${folder})
        install(TARGETS zephyrix_${folder} EXPORT ZephyrixTargets
                ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT libraries
                OBJECTS DESTINATION "${CMAKE_INSTALL_LIBDIR}/zephyrix" COMPONENT libraries
                INCLUDES DESTINATION "${ZEPHYRIX_HEADERS_DIR}")
    endforeach()
endfunction()

# zephyrix_export_rooms(<folder...>): the rooms with their headers, as <zephyrix/folder/Header.h>.
function(zephyrix_export_rooms)
    zephyrix_export(${ARGN})
    foreach(folder IN LISTS ARGN)
        target_compile_features(zephyrix_${folder} INTERFACE cxx_std_20)
        install(DIRECTORY "${CMAKE_SOURCE_DIR}/src/${folder}" DESTINATION "${ZEPHYRIX_HEADERS_DIR}"
                COMPONENT libraries FILES_MATCHING PATTERN "*.h")
    endforeach()
endfunction()
