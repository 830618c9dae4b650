#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "manager/smbios_version.h"
#include "smbios-inspect/departures/library_fields.h"
#include "smbios-inspect/standard/description.h"
#include "structures/base_structure.h"

namespace SMBIOS::Inspect::Departures {

/// A field of a record, and what the standard makes of the same bytes. A view: valid only while they are.
struct Comparison {
    const Standard::Structure& structure;
    const Structures::BaseStructure& decoder;
    Manager::SmbiosVersionIndex version;  ///< that the library takes the table for
    const LibraryField& library;
    const Standard::FieldRow* row;                   ///< null when the standard has no such field
    const std::optional<Standard::Value>& standard;  ///< none when the structure ends before the field does
    unsigned lowBit = 0;
    unsigned bitCount = 64;

    [[nodiscard]] Structures::FormattedArea Area() const noexcept { return structure.Area(); }

    [[nodiscard]] bool IsBefore(Manager::SmbiosVersionIndex other) const noexcept { return version < other; }

    [[nodiscard]] bool HasLibraryValue() const noexcept { return !IsNone(library.value); }

    /// The whole bytes of the standard's field, without regard to which bits of them the field is.
    [[nodiscard]] std::uint64_t Raw() const noexcept;

    /// The bits of these bytes that the library's field is.
    [[nodiscard]] std::uint64_t RawBits() const noexcept;

    /// Another field of the standard's description of the structure.
    [[nodiscard]] std::optional<Standard::Value> Other(std::string_view name) const;
};

/// Whether two values agree.
struct Rule {
    bool (*agree)(const Comparison&);
    unsigned lowBit = 0;  ///< of the bytes of the standard's field
    unsigned bitCount = 64;
};

}  // namespace SMBIOS::Inspect::Departures
