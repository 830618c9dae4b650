#pragma once

#include <string>
#include <string_view>
#include <vector>

// How pieces of text become one; a piece that is empty says nothing.
namespace SMBIOS::Inspect {

/// The texts that are not empty, with `separator` between each two.
[[nodiscard]] std::string Joined(const std::vector<std::string>& texts, std::string_view separator);

/// `text` behind `prefix`; empty when it is.
[[nodiscard]] std::string Prefixed(std::string_view prefix, std::string_view text);

}  // namespace SMBIOS::Inspect
