#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <system_error>

namespace SMBIOS::Platform {

/// What becomes of a file that is there already.
enum class Existing : std::uint8_t { kept, replaced };

/// Makes `target` a file that holds `bytes`: on the disk whole, or not at all, however this process ends.
/// They are written to a new file in the same folder, which then takes the name; only if the system dies can
/// that one stay behind. On Linux a new file is its owner's alone to read, and one that replaces another has
/// that one's owner and mode; on Windows it is as its folder makes it. A symbolic link is not followed.
/// Returns the system's reason when it fails: std::errc::file_exists when `target` is there and to be kept,
/// in whatever form. One call at a time in a process. Throws std::bad_alloc, and std::runtime_error where
/// there is no randomness.
[[nodiscard]] std::error_code WriteFileWhole(const std::filesystem::path& target,
                                             std::span<const std::uint8_t> bytes,
                                             Existing existing);

}  // namespace SMBIOS::Platform
