#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Sentences of the picture.
namespace SMBIOS::Inspect::Picture {

/// The texts that are not empty, with a middle dot between each two.
[[nodiscard]] std::string Dotted(const std::vector<std::string>& texts);

/// The first text that is not empty.
[[nodiscard]] std::string FirstSaid(const std::vector<std::string>& texts);

/// "1,904".
[[nodiscard]] std::string CountText(std::uint64_t count);

/// "1 slot", "1,904 slots".
[[nodiscard]] std::string Counted(std::uint64_t count, std::string_view noun);

}  // namespace SMBIOS::Inspect::Picture
