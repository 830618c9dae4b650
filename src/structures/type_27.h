#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type27::Types {

/// Record of one Cooling Device.
struct Type27Struct : StructureRecord {
    std::string description;
    std::optional<std::uint8_t> deviceTypeAndStatus;
    std::string deviceType;
    std::string status;
    std::optional<std::uint8_t> coolingUnitGroup;
    std::optional<std::uint16_t> temperatureProbeHandle;
    std::optional<std::uint32_t> oemDefined;
};

}  // namespace Type27::Types

/// Decoder of Cooling Device structures: one per fan or other means of cooling.
class Type_27 final : public Decoder<Type_27, Type27::Types::Type27Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::CoolingDevice;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type27::Types::Type27Struct& record);
};

}  // namespace SMBIOS::Structures
