#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type39::Types {

/// Record of one System Power Supply.
struct Type39Struct : StructureRecord {
    std::string location;
    std::string deviceName;
    std::string manufacturer;
    std::string serialNumber;
    std::string assetTagNumber;
    std::string revisionLevel;
    std::string modelPartNumber;
    std::optional<std::uint8_t> powerUnitGroup;
    std::optional<std::uint16_t> maxPowerCapacity;  ///< watts
    std::optional<std::uint16_t> characteristics;
    std::string dmtfType;
    std::string status;
    std::string inputVoltageRangeSwitching;
    std::optional<bool> isUnplugged;
    std::optional<bool> isPresent;
    std::optional<bool> isHotReplaceable;
};

}  // namespace Type39::Types

/// Decoder of System Power Supply structures: one per power supply.
class Type_39 final : public Decoder<Type_39, Type39::Types::Type39Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::SystemPowerSupply;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type39::Types::Type39Struct& record);
};

}  // namespace SMBIOS::Structures
