# The package of the programs for Debian 12: cpack --preset release.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zephyrix-panel)
set(CPACK_PACKAGE_VENDOR "The Zephyrix Panel authors")
set(CPACK_PACKAGE_CONTACT "The Zephyrix Panel authors <maintainers@zephyrix.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};programs;/")
set(CPACK_STRIP_FILES TRUE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/PackageFolders.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "weather panel for the desktop")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A small panel with the weather at one place: symbol, temperature, the weather
in words, wind, rain and pressure; and, opened up, the next days. It lives in
the tray where there is one, and in a window elsewhere.
.
Until a public weather service is chosen it shows demonstration weather, and
says so.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS tzdata)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, fonts-inter, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)

# The package bears the time of its last change, and not that at which somebody makes it.
file(STRINGS debian/changelog signatures REGEX "^ -- ")
list(GET signatures 0 signature)
string(REGEX REPLACE "^ -- .*>  " "" changed "${signature}")
execute_process(COMMAND date --utc --date "${changed}" +%s
    OUTPUT_VARIABLE changed OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(CONFIGURE OUTPUT CPackTime.cmake @ONLY CONTENT [[
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    set(ENV{SOURCE_DATE_EPOCH} @changed@)
endif()
]])
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_BINARY_DIR}/CPackTime.cmake")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS debian/changelog)
include(CPack)
