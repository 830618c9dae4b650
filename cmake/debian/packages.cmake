# The Debian packages. The library's is named for its SONAME, so that two major versions can be installed together.
set(library_package "lib${PROJECT_NAME}-${PROJECT_VERSION_MAJOR}")
set(development_package "lib${PROJECT_NAME}-dev")
set(tools_package "smbios-inspect")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development tools)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE "${PROJECT_NAME}")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(package_version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "${library_package}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_LIST_DIR}/triggers")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "decoder of the firmware's SMBIOS table
Tells an application what memory and processors the machine reports through
its firmware. This package holds the shared libraries.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "${development_package}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${package_version})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "decoder of the firmware's SMBIOS table - development files
Tells an application what memory and processors the machine reports through
its firmware. This package holds the headers, the static library, what CMake
and pkg-config look for, the documents and examples.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME "${tools_package}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "inspection tool for the firmware's SMBIOS table
Shows what memory and processors the machine reports through its firmware,
and every structure of the table, as text or as JSON.")

# What every Debian package holds, and no other installation.
set(debian_dir "${PROJECT_BINARY_DIR}/debian")
configure_file("${CMAKE_CURRENT_LIST_DIR}/changelog.in" "${debian_dir}/changelog" @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/LICENSE" "${debian_dir}/copyright" COPYONLY)
compress_file("${debian_dir}/changelog" "${debian_dir}/changelog.Debian.gz")
foreach(component library development tools)
    install(FILES "${debian_dir}/copyright" "${debian_dir}/changelog.Debian.gz"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${${component}_package}" COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()
