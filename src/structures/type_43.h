#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common/dynamic_bitset.h"
#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type43::Types {

/// Record of one TPM Device.
struct Type43Struct : StructureRecord {
    std::string description;
    std::string vendorId;  ///< four characters, NULs included
    std::optional<std::uint8_t> majorSpecVersion;
    std::optional<std::uint8_t> minorSpecVersion;
    std::optional<std::uint32_t> firmwareVersion1;
    std::optional<std::uint32_t> firmwareVersion2;
    std::string firmwareVersion;
    std::string specVersion;
    std::optional<Common::Dynamic_BitSet> characteristics;
    std::optional<std::uint32_t> oemDefined;
};

}  // namespace Type43::Types

/// Decoder of TPM Device structures: one per trusted platform module.
class Type_43 final : public Decoder<Type_43, Type43::Types::Type43Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::TpmDevice;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type43::Types::Type43Struct& record);
};

}  // namespace SMBIOS::Structures
