#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common/dynamic_bitset.h"
#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type17::Types {

/// Record of one Memory Device. Widths are in bits, speeds in MT/s, voltages in millivolts.
struct Type17Struct : StructureRecord {
    std::optional<std::uint8_t> deviceSet;
    std::optional<std::uint16_t> dataWidth;
    std::optional<std::uint16_t> totalWidth;
    std::optional<std::uint8_t> memoryType;
    std::string memoryTypeName;
    std::optional<std::uint16_t> physicalMemoryArrayHandle;
    std::optional<std::uint16_t> memoryErrorInformationHandle;
    std::optional<std::uint8_t> formFactor;
    std::string formFactorName;
    std::string deviceLocator;
    std::optional<std::uint16_t> typeDetail;
    std::optional<Common::Dynamic_BitSet> typeDetailFlags;
    std::optional<std::uint32_t> speed;
    std::string manufacturer;
    std::string serialNumber;
    std::string assetTag;
    std::string partNumber;
    std::optional<std::uint8_t> rank;
    std::optional<std::uint32_t> configuredSpeed;
    std::optional<std::uint16_t> minimumVoltage;
    std::optional<std::uint16_t> maximumVoltage;
    std::optional<std::uint16_t> configuredVoltage;
    std::optional<std::uint8_t> memoryTechnology;
    std::optional<Common::Dynamic_BitSet> memoryTechnologyFlags;
    std::optional<std::uint16_t> operatingModeCapability;
    std::optional<Common::Dynamic_BitSet> operatingModeCapabilityFlags;
    std::string firmwareVersion;
    std::optional<std::uint64_t> cacheSize;
    std::optional<std::uint64_t> logicalSize;
    std::optional<std::uint64_t> volatileSize;
    std::optional<std::uint64_t> nonVolatileSize;
    std::optional<std::uint16_t> moduleProductId;
    std::optional<std::uint16_t> moduleManufacturerId;
    std::optional<std::uint16_t> memorySubsystemControllerManufacturerId;
    std::optional<std::uint16_t> memorySubsystemControllerProductId;
    std::optional<std::uint16_t> rcdRevisionNumber;
    std::optional<std::uint16_t> pmic0RevisionNumber;
    std::optional<std::uint16_t> rcdManufacturerId;
    std::optional<std::uint16_t> pmic0ManufacturerId;
    std::string bankLocator;
    std::optional<std::uint64_t> size;          ///< bytes; kilobytes where the firmware counts in kilobytes
    std::optional<std::uint8_t> positionInRow;  ///< never in the firmware; completed by MemoryInfo
};

}  // namespace Type17::Types

/// Decoder of Memory Device structures: one per memory slot or soldered device.
class Type_17 final : public Decoder<Type_17, Type17::Types::Type17Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::MemoryDevice;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type17::Types::Type17Struct& record);
};

}  // namespace SMBIOS::Structures
