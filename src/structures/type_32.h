#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type32::Types {

/// Record of the System Boot Information.
struct Type32Struct : StructureRecord {
    std::optional<std::uint8_t> bootStatusValue;
    std::string bootStatus;
    std::optional<std::vector<std::uint8_t>> bootStatusData;  ///< always 10 bytes
};

}  // namespace Type32::Types

/// Decoder of System Boot Information structures: how the last boot went.
class Type_32 final : public Decoder<Type_32, Type32::Types::Type32Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::SystemBootInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type32::Types::Type32Struct& record);
};

}  // namespace SMBIOS::Structures
