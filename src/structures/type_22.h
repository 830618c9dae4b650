#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type22::Types {

/// Record of one Portable Battery. SBDS is the Smart Battery Data standard.
struct Type22Struct : StructureRecord {
    std::string location;
    std::string manufacturer;
    std::string deviceName;
    std::string sbdsVersionNumber;
    std::string serialNumber;
    std::string manufactureDate;
    std::optional<std::uint8_t> deviceChemistryValue;
    std::string deviceChemistry;
    std::optional<std::uint16_t> designVoltage;             ///< millivolts
    std::optional<std::uint8_t> maximumErrorInBatteryData;  ///< percent
    std::optional<std::uint64_t> designCapacity;            ///< milliwatt-hours
    std::optional<std::uint32_t> oemSpecific;
};

}  // namespace Type22::Types

/// Decoder of Portable Battery structures: one per battery of the system.
class Type_22 final : public Decoder<Type_22, Type22::Types::Type22Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::PortableBattery;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type22::Types::Type22Struct& record);
};

}  // namespace SMBIOS::Structures
