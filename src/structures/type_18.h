#pragma once

#include "structures/decoder.h"
#include "structures/memory_error.h"

namespace SMBIOS::Structures {

namespace Type18::Types {

/// Record of one 32-bit Memory Error Information.
struct Type18Struct : MemoryErrorRecord {};

}  // namespace Type18::Types

/// Decoder of 32-bit Memory Error Information structures: the last error of an array or a device.
class Type_18 final : public Decoder<Type_18, Type18::Types::Type18Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::MemoryErrorInformation32Bit;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type18::Types::Type18Struct& record);
};

}  // namespace SMBIOS::Structures
