# Package configuration for a copy of the {fmt} headers alone. scripts/setup puts it beside them.
get_filename_component(fmt_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

if(NOT TARGET fmt::fmt-header-only)
    add_library(fmt::fmt-header-only INTERFACE IMPORTED)
    set_target_properties(fmt::fmt-header-only PROPERTIES
        INTERFACE_COMPILE_DEFINITIONS FMT_HEADER_ONLY=1
        INTERFACE_INCLUDE_DIRECTORIES "${fmt_prefix}/include")
endif()
