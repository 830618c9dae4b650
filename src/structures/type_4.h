#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "common/dynamic_bitset.h"
#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type4::Types {

/// Record of one Processor Information. Clocks are in MHz, widths in bits, cache sizes in kilobytes.
struct Type4Struct : StructureRecord {
    std::string processorVersion;
    std::string processorManufacturer;
    std::string socketDesignation;
    std::optional<std::uint8_t> processorType;
    std::string deviceId;     ///< never in the firmware; completed by ProcessorInfo
    std::string caption;      ///< never in the firmware; completed by ProcessorInfo
    std::string description;  ///< never in the firmware; completed by ProcessorInfo
    std::string processorTypeName;
    std::optional<std::uint16_t> processorFamily;
    std::string processorFamilyName;
    std::string processorId;  ///< 16 hexadecimal digits, most significant first
    std::optional<bool> legacyVoltageMode;
    std::optional<std::vector<std::string>> supportedVoltages;  ///< in legacy voltage mode only
    std::optional<float> currentVoltage;                        ///< volts; in the other mode only
    std::optional<std::uint16_t> externalClock;
    std::optional<std::uint16_t> currentSpeed;
    bool socketPopulated = false;
    std::optional<std::string> statusText;
    std::optional<std::uint8_t> processorUpgrade;
    std::string processorUpgradeName;
    std::optional<std::uint16_t> l1CacheHandle;
    std::optional<std::uint16_t> l2CacheHandle;
    std::optional<std::uint16_t> l3CacheHandle;
    std::string serialNumber;
    std::string assetTag;
    std::string partNumber;
    std::optional<std::uint16_t> coreCount;
    std::optional<std::uint16_t> coreEnabled;
    std::optional<std::uint16_t> threadCount;
    std::optional<std::uint16_t> threadEnabled;
    std::string socketType;
    std::optional<std::uint16_t> processorCharacteristics;
    std::optional<Common::Dynamic_BitSet> characteristicsFlags;
    std::optional<bool> virtualizationFirmwareEnabled;  ///< ProcessorInfo may know better
    std::optional<std::uint16_t> maxSpeed;              ///< not decoded; completed by ProcessorInfo
    std::optional<std::uint16_t> addressWidth;          ///< never in the firmware; completed by ProcessorInfo
    std::optional<std::uint16_t> dataWidth;             ///< never in the firmware; completed by ProcessorInfo
    std::optional<std::uint64_t> l1CacheSize;  ///< in the cache's own record; completed by ProcessorInfo
    std::optional<std::uint64_t> l2CacheSize;  ///< in the cache's own record; completed by ProcessorInfo
    std::optional<std::uint64_t> l3CacheSize;  ///< in the cache's own record; completed by ProcessorInfo
};

}  // namespace Type4::Types

/// Decoder of Processor Information structures: one per processor socket.
class Type_4 final : public Decoder<Type_4, Type4::Types::Type4Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::ProcessorInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type4::Types::Type4Struct& record);
};

}  // namespace SMBIOS::Structures
