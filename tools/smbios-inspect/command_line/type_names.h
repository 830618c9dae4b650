#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace SMBIOS::Inspect {

/// A word for structure types that belong together, as --type takes it.
struct TypeName {
    std::string_view name;
    std::span<const std::uint8_t> types;
};

/// All of them, in the order of their first types.
[[nodiscard]] std::span<const TypeName> TypeNames() noexcept;

}  // namespace SMBIOS::Inspect
