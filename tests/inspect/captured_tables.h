#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace SMBIOS::Tests {

inline constexpr const char* kCapturedTables[] = {
    "Asus-UX307LA.bin",
    "Beelink-EQ12.bin",
    "Gigabyte-GA-MA74GMT-S2.bin",
    "Lenovo-ThinkPad-T480.bin",
    "Lenovo-ThinkPad-W510.bin",
    "MSI-MS-7816.bin",
    "VMWare.bin",
    "desktop-3.2.0.raw",
};

inline std::string CapturedTable(const std::string& name) {
    return (std::filesystem::path(SMBIOS_DUMPS_DIR) / name).string();
}

inline bool HasCapturedTables() {
    return std::filesystem::is_directory(SMBIOS_DUMPS_DIR);
}

/// A test name may hold letters, digits and underscores only.
inline std::string AsTestName(std::string text) {
    for (char& character : text) {
        const bool isAllowed = (character >= '0' && character <= '9') ||
                               (character >= 'A' && character <= 'Z') ||
                               (character >= 'a' && character <= 'z');
        if (!isAllowed) {
            character = '_';
        }
    }
    return text;
}

}  // namespace SMBIOS::Tests
