#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace SMBIOS::Inspect {

/// The path that an argument names: arguments are UTF-8 on every system.
[[nodiscard]] inline std::filesystem::path FilePath(std::string_view argument) {
    return std::u8string(argument.begin(), argument.end());
}

}  // namespace SMBIOS::Inspect
