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

# Whoever corrupts memory in spite of everything finds no easy next step. tests/hardening reads the files for it.
# Not with MinGW-w64: its stack guard is a library that every user of the static library would have to link, too.
if(NOT MINGW)
    target_compile_options(smbios-build-options INTERFACE
        -fstack-protector-strong $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
    target_link_options(smbios-build-options INTERFACE -Wl,-z,relro -Wl,-z,now)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        target_compile_options(smbios-build-options INTERFACE -fcf-protection=full)
    endif()
endif()

if(MINGW)
    # The runtime libraries of the compiler are not present on a user's machine.
    target_link_options(smbios-build-options INTERFACE
        -static -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va)
endif()
