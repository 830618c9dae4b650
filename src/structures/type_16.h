#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type16::Types {

/// Record of one Physical Memory Array.
struct Type16Struct : StructureRecord {
    std::optional<std::uint8_t> location;
    std::optional<std::uint8_t> use;
    std::optional<std::uint8_t> memoryErrorCorrection;
    std::string locationName;
    std::string useName;
    std::string memoryErrorCorrectionName;
    std::optional<std::uint64_t> maximumCapacity;  ///< kilobytes; bytes where the extended capacity is taken
    std::optional<std::uint16_t> memoryErrorInformationHandle;
    std::optional<std::uint16_t> numberOfMemoryDevices;
};

}  // namespace Type16::Types

/// Decoder of Physical Memory Array structures: one per group of memory slots.
class Type_16 final : public Decoder<Type_16, Type16::Types::Type16Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::PhysicalMemoryArray;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type16::Types::Type16Struct& record);
};

}  // namespace SMBIOS::Structures
