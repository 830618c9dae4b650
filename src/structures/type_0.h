#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common/dynamic_bitset.h"
#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type0::Types {

/// Record of the BIOS Information.
struct Type0Struct : StructureRecord {
    std::string vendor;
    std::string biosVersion;  ///< always empty; kept for compatibility with callers
    std::string releaseDate;
    std::string startingAddressSegment;
    std::string systemBiosRelease;
    std::string ecFirmwareRelease;
    std::optional<Common::Dynamic_BitSet> characteristics;
    std::optional<std::uint64_t> romSize;                             ///< bytes
    std::optional<Common::Dynamic_BitSet> characteristicsExtension1;  ///< always empty, likewise
    std::optional<Common::Dynamic_BitSet> characteristicsExtension2;  ///< always empty, likewise
    std::optional<std::uint8_t> systemBiosMajorRelease;
    std::optional<std::uint8_t> systemBiosMinorRelease;
    std::optional<std::uint8_t> ecFirmwareMajorRelease;
    std::optional<std::uint8_t> ecFirmwareMinorRelease;
};

}  // namespace Type0::Types

/// Decoder of the BIOS Information structure: who made the firmware, its release and what it supports.
class Type_0 final : public Decoder<Type_0, Type0::Types::Type0Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::BiosInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type0::Types::Type0Struct& record);
};

}  // namespace SMBIOS::Structures
