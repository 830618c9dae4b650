#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type19::Types {

/// Record of one Memory Array Mapped Address. Addresses are hexadecimal texts in kilobytes; in bytes where
/// the extended address is taken.
struct Type19Struct : StructureRecord {
    std::string startingAddress;
    std::string endingAddress;
    std::optional<std::uint16_t> memoryArrayHandle;
    std::optional<std::uint8_t> partitionWidth;
};

}  // namespace Type19::Types

/// Decoder of Memory Array Mapped Address structures: the address range of a physical memory array.
class Type_19 final : public Decoder<Type_19, Type19::Types::Type19Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::MemoryArrayMappedAddress;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type19::Types::Type19Struct& record);
};

}  // namespace SMBIOS::Structures
