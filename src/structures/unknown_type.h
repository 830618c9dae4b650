#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "structures/decoder.h"

namespace SMBIOS::Structures {

namespace TypeUnknown::Types {

/// Record of a structure whose type has no decoder of its own.
struct TypeUnknownStruct {
    std::uint8_t type = 0;  ///< the structure's real type number
    std::uint16_t handle = 0;
    std::optional<std::vector<std::string>> strings;
    std::vector<std::uint8_t> rawBytes;
    std::string error;
};

}  // namespace TypeUnknown::Types

/// Decoder of every type that has none of its own: keeps type, handle, strings and raw bytes.
class UnknownType final : public Decoder<UnknownType, TypeUnknown::Types::TypeUnknownStruct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::Unknown;
    using Decoder::Decoder;

    void Parse(const std::vector<std::uint8_t>& formattedBytes) override;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, TypeUnknown::Types::TypeUnknownStruct& record);
};

}  // namespace SMBIOS::Structures
