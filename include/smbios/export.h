#pragma once

/// SMBIOS_EXPORT marks what the library offers to its callers. The library's own build defines
/// SMBIOS_BUILDING_LIBRARY; a program that links the objects statically defines SMBIOS_STATIC.
#if defined(_WIN32)
#if defined(SMBIOS_STATIC)
#define SMBIOS_EXPORT
#elif defined(SMBIOS_BUILDING_LIBRARY)
#define SMBIOS_EXPORT __declspec(dllexport)
#else
#define SMBIOS_EXPORT __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define SMBIOS_EXPORT __attribute__((visibility("default")))
#else
#define SMBIOS_EXPORT
#endif
