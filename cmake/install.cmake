include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME}")
set(version_file "${PROJECT_BINARY_DIR}/${PROJECT_NAME}-config-version.cmake")
write_basic_package_version_file("${version_file}" COMPATIBILITY SameMajorVersion)

install(TARGETS vantor-shared-smbios-v2 EXPORT ${PROJECT_NAME}-config
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(TARGETS smbios-inspect)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        FILES_MATCHING PATTERN "*.h")
install(FILES "${version_file}" DESTINATION "${package_dir}")
if(NOT WIN32)
    install(FILES "${PROJECT_SOURCE_DIR}/docs/smbios-inspect.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(FILES "${PROJECT_SOURCE_DIR}/tools/completion/smbios-inspect.bash"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME smbios-inspect)
endif()

# The library needs nothing of its users, so the list of targets is the whole package configuration.
install(EXPORT ${PROJECT_NAME}-config NAMESPACE vantor:: DESTINATION "${package_dir}")
export(EXPORT ${PROJECT_NAME}-config NAMESPACE vantor:: FILE "${PROJECT_BINARY_DIR}/${PROJECT_NAME}-config.cmake")
