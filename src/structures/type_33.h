#pragma once

#include "structures/decoder.h"
#include "structures/memory_error.h"

namespace SMBIOS::Structures {

namespace Type33::Types {

/// Record of one 64-bit Memory Error Information.
struct Type33Struct : MemoryErrorRecord {};

}  // namespace Type33::Types

/// Decoder of 64-bit Memory Error Information structures: the last error of an array or a device.
class Type_33 final : public Decoder<Type_33, Type33::Types::Type33Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::MemoryErrorInformation64Bit;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type33::Types::Type33Struct& record);
};

}  // namespace SMBIOS::Structures
