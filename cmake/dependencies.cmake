include(CheckCXXSourceCompiles)

find_package(nlohmann_json 3.12.0 REQUIRED)

check_cxx_source_compiles([[
    #include <format>
    int main() { return static_cast<int>(std::format("{}", 1).size()); }
]] SMBIOS_HAS_STD_FORMAT)

# What the internal headers format text with: the standard library, or {fmt} where the standard library is too old.
add_library(smbios-format INTERFACE)
if(NOT SMBIOS_HAS_STD_FORMAT)
    find_package(fmt REQUIRED)
    target_compile_definitions(smbios-format INTERFACE SMBIOS_USE_FMT)
    target_link_libraries(smbios-format INTERFACE fmt::fmt-header-only)
endif()

if(SMBIOS_BUILD_TESTS)
    find_package(GTest REQUIRED)
endif()
