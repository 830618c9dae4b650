#pragma once

#include <cstdint>
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

/// What the standard makes of a field of a structure.
struct FieldReading {
    FieldReading(const Standard::Structure& structure, const StandardField& field);

    bool isThere;           ///< there is such a field, and the structure does not end before it does
    Standard::Value value;  ///< without anything where it is not
};

}  // namespace SMBIOS::Inspect::Departures
