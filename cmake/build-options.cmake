# How every target of this project is compiled and linked. Targets link to it privately, so nothing of it reaches a user.
add_library(smbios-build-options INTERFACE)

set(CMAKE_COMPILE_WARNING_AS_ERROR ${SMBIOS_WARNINGS_AS_ERRORS})

if(MSVC)
    target_compile_options(smbios-build-options INTERFACE /W4 /permissive- /utf-8)
    return()
endif()

target_compile_options(smbios-build-options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    -ffunction-sections -fdata-sections)
target_link_options(smbios-build-options INTERFACE -Wl,--gc-sections)

if(MINGW)
    # The runtime libraries of the compiler are not present on a user's machine.
    target_link_options(smbios-build-options INTERFACE
        -static -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va)
endif()
