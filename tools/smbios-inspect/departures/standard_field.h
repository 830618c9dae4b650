#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "smbios-inspect/standard/description.h"

namespace SMBIOS::Inspect::Departures {

/// A field of the standard's description of a type.
struct StandardField {
    const Standard::FieldRow* row = nullptr;  ///< null when there is none
    bool isBehindGroup = false;               ///< where it stands depends on the structure

    /// Whether the structure is long enough for a field that is not behind a group.
    [[nodiscard]] bool IsWithin(const Standard::Structure& structure) const noexcept {
        return row->offset + row->width <= structure.bytes.size();
    }
};

/// The field that programs know by this name; the structure's own ones only, none of its lists.
[[nodiscard]] StandardField FindStandardField(std::uint8_t type, std::string_view name) noexcept;

/// What the standard makes of it; none when there is no such field or the structure ends before it does.
[[nodiscard]] std::optional<Standard::Value> ReadStandardField(const Standard::Structure& structure,
                                                               const StandardField& field);

}  // namespace SMBIOS::Inspect::Departures
