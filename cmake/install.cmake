include(CMakePackageConfigHelpers)
# Debian keeps libraries in a folder named for the processor, under every prefix that it searches.
if(PROJECT_IS_TOP_LEVEL AND EXISTS /etc/debian_version AND NOT CMAKE_CROSSCOMPILING AND CMAKE_LIBRARY_ARCHITECTURE)
    set(CMAKE_INSTALL_LIBDIR "lib/${CMAKE_LIBRARY_ARCHITECTURE}" CACHE PATH "Where libraries are installed")
endif()
include(GNUInstallDirs)

# The same input gives the same bytes. A change of the input configures anew.
function(compress_file input output)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${input}")
    execute_process(COMMAND gzip -9 -n -c "${input}" OUTPUT_FILE "${output}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME}")
set(version_file "${PROJECT_BINARY_DIR}/${PROJECT_NAME}-config-version.cmake")
write_basic_package_version_file("${version_file}" COMPATIBILITY SameMajorVersion)

set(libraries vantor-shared-smbios-v2)
if(SMBIOS_BUILD_TOOLS)
    list(APPEND libraries vantor-shared-smbios-report-v2)
    install(TARGETS smbios-inspect COMPONENT tools)
endif()
install(TARGETS ${libraries} EXPORT ${PROJECT_NAME}-config
        RUNTIME COMPONENT library
        LIBRARY COMPONENT library NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(TARGETS vantor-shared-smbios-v2-static EXPORT ${PROJECT_NAME}-config
        ARCHIVE COMPONENT development
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
        FILES_MATCHING PATTERN "*.h")
install(FILES "${version_file}" DESTINATION "${package_dir}" COMPONENT development)
if(TARGET report-import-library)
    install(FILES "${PROJECT_BINARY_DIR}/lib/vantor-shared-smbios-report-v2.lib"
            DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
endif()
if(SMBIOS_BUILD_TOOLS AND NOT WIN32)
    compress_file("${PROJECT_SOURCE_DIR}/docs/smbios-inspect.1" "${PROJECT_BINARY_DIR}/smbios-inspect.1.gz")
    install(FILES "${PROJECT_BINARY_DIR}/smbios-inspect.1.gz"
            DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
    install(FILES "${PROJECT_SOURCE_DIR}/tools/completion/smbios-inspect.bash"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME smbios-inspect
            COMPONENT tools)
endif()

# The libraries need nothing of their users, so the list of targets is the whole package configuration.
install(EXPORT ${PROJECT_NAME}-config NAMESPACE vantor:: DESTINATION "${package_dir}" COMPONENT development)
export(EXPORT ${PROJECT_NAME}-config NAMESPACE vantor:: FILE "${PROJECT_BINARY_DIR}/${PROJECT_NAME}-config.cmake")

# Both pkg-config files find their prefix from where they lie, so that an unpacked package works, too.
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir}"
           OUTPUT_VARIABLE prefix_from_pkgconfig)
foreach(library ${libraries})
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${library}.pc.in" "${PROJECT_BINARY_DIR}/${library}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${library}.pc" DESTINATION "${pkgconfig_dir}" COMPONENT development)
endforeach()

# Windows has no place for documents; they go beside the DLL.
set(documents_dir "${CMAKE_INSTALL_DOCDIR}")
if(WIN32)
    set(documents_dir "${CMAKE_INSTALL_BINDIR}")
endif()
install(FILES README.md CHANGELOG.md SECURITY.md LICENSE DESTINATION "${documents_dir}" COMPONENT development)
install(DIRECTORY docs examples DESTINATION "${documents_dir}" COMPONENT development
        PATTERN CMakeLists.txt EXCLUDE PATTERN "*.1" EXCLUDE)
