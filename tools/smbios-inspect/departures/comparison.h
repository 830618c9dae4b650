#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "manager/smbios_version.h"
#include "smbios-inspect/departures/library_fields.h"
#include "smbios-inspect/departures/standard_field.h"
#include "smbios-inspect/standard/description.h"
#include "structures/base_structure.h"

namespace SMBIOS::Inspect::Departures {

/// A field of a record, and what the standard makes of the same bytes. A view: valid only while they are.
class Comparison {
public:
    /// The bits are those of the standard's field that the library's is.
    Comparison(const Standard::Structure& ofStructure,
               const Structures::BaseStructure& ofDecoder,
               Manager::SmbiosVersionIndex ofVersion,
               const LibraryField& ofLibrary,
               const StandardField& ofStandard,
               unsigned ofLowBit,
               unsigned ofBitCount) noexcept
        : structure(ofStructure),
          decoder(ofDecoder),
          version(ofVersion),
          library(ofLibrary),
          row(ofStandard.row),
          lowBit(ofLowBit),
          bitCount(ofBitCount),
          standard_(ofStandard) {}

    const Standard::Structure& structure;
    const Structures::BaseStructure& decoder;
    const Manager::SmbiosVersionIndex version;  ///< that the library takes the table for
    const LibraryField& library;
    const Standard::FieldRow* const row;  ///< null when the standard has no such field
    const unsigned lowBit;
    const unsigned bitCount;

    /// What the standard makes of the field, made when it is asked for; null when the structure ends before
    /// the field does.
    [[nodiscard]] const Standard::Value* StandardValue() const {
        const FieldReading& reading = reading_ ? *reading_ : reading_.emplace(structure, standard_);
        return reading.isThere ? &reading.value : nullptr;
    }

    /// Whether there is one, which mostly is told without making it.
    [[nodiscard]] bool HasStandardValue() const {
        return standard_.isBehindGroup ? StandardValue() != nullptr
                                       : row != nullptr && standard_.IsWithin(structure);
    }

    [[nodiscard]] Structures::FormattedArea Area() const noexcept { return structure.Area(); }

    [[nodiscard]] bool IsBefore(Manager::SmbiosVersionIndex other) const noexcept { return version < other; }

    [[nodiscard]] bool HasLibraryValue() const noexcept { return !IsNone(library.value); }

    /// The whole bytes of the standard's field, without regard to which bits of them the field is.
    [[nodiscard]] std::uint64_t Raw() const noexcept;

    /// The bits of these bytes that the library's field is.
    [[nodiscard]] std::uint64_t RawBits() const noexcept;

    /// Another field of the standard's description of the structure.
    [[nodiscard]] FieldReading Other(std::string_view name) const;

private:
    const StandardField& standard_;
    mutable std::optional<FieldReading> reading_;  // none before it is asked for
};

/// Whether two values agree.
struct Rule {
    bool (*agree)(const Comparison&);
    unsigned lowBit = 0;  ///< of the bytes of the standard's field
    unsigned bitCount = 64;
};

}  // namespace SMBIOS::Inspect::Departures
