# The libraries, for find_package(Zephyrix).
include(CMakePackageConfigHelpers)

zephyrix_export_rooms(foundation model astro meteo symbolscheme png symbols)
zephyrix_export(images translations)
install(FILES "${CMAKE_BINARY_DIR}/generated/symbolscheme/symbolscheme/SymbolTables.h"
        DESTINATION "${ZEPHYRIX_HEADERS_DIR}/symbolscheme" COMPONENT libraries)
install(EXPORT ZephyrixTargets NAMESPACE Zephyrix::
        DESTINATION "${ZEPHYRIX_CONFIG_DIR}" COMPONENT libraries)

set(installed_data_dir "${CMAKE_INSTALL_DATADIR}/zephyrix")
configure_package_config_file(ZephyrixConfig.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/ZephyrixConfig.cmake"
    INSTALL_DESTINATION "${ZEPHYRIX_CONFIG_DIR}" PATH_VARS installed_data_dir)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/ZephyrixConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/ZephyrixConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/ZephyrixConfigVersion.cmake"
        DESTINATION "${ZEPHYRIX_CONFIG_DIR}" COMPONENT libraries)
