#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type21::Types {

/// Record of one Built-in Pointing Device.
struct Type21Struct : StructureRecord {
    std::optional<std::uint8_t> typeValue;
    std::string type;
    std::optional<std::uint8_t> interfaceValue;
    std::string interface;
    std::optional<std::uint8_t> numberOfButtons;
};

}  // namespace Type21::Types

/// Decoder of Built-in Pointing Device structures: one per mouse, touch pad or the like.
class Type_21 final : public Decoder<Type_21, Type21::Types::Type21Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::BuiltInPointingDevice;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type21::Types::Type21Struct& record);
};

}  // namespace SMBIOS::Structures
