#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <vector>

namespace SMBIOS::Platform {

/// More than any firmware's table has; keeps an endless file from filling the memory.
inline constexpr std::size_t kLargestFile = std::size_t{16} * 1024 * 1024;

/// The contents of a file, or the system's reason why they could not be read.
struct FileBytes {
    std::vector<std::uint8_t> bytes;
    std::error_code error;
};

/// Reads `file` until its end, whatever size the system states for it. A file of more than `largest` bytes is
/// an error (std::errc::file_too_large). Throws only std::bad_alloc.
[[nodiscard]] FileBytes ReadFileBytes(const std::filesystem::path& file, std::size_t largest = kLargestFile);

}  // namespace SMBIOS::Platform
