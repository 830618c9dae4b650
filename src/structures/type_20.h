#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type20::Types {

/// Record of one Memory Device Mapped Address. Addresses are hexadecimal texts in kilobytes; in bytes where
/// the extended address is taken.
struct Type20Struct : StructureRecord {
    std::string startingAddress;
    std::string endingAddress;
    std::optional<std::uint16_t> memoryDeviceHandle;
    std::optional<std::uint16_t> memoryArrayMappedAddressHandle;
    std::optional<std::uint8_t> partitionRowPosition;
    std::optional<std::uint8_t> interleavePosition;
    std::optional<std::uint8_t> interleavedDataDepth;
};

}  // namespace Type20::Types

/// Decoder of Memory Device Mapped Address structures: the address range of a memory device.
class Type_20 final : public Decoder<Type_20, Type20::Types::Type20Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::MemoryDeviceMappedAddress;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type20::Types::Type20Struct& record);
};

}  // namespace SMBIOS::Structures
