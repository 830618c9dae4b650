#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type41::Types {

/// Record of one Onboard Device.
struct Type41Struct : StructureRecord {
    std::string referenceDesignation;
    std::optional<std::uint8_t> deviceTypeInstance;
    std::optional<std::uint16_t> segmentGroupNumber;
    std::optional<std::uint8_t> busNumber;
    std::optional<bool> isEnabled;
    std::string deviceType;
    std::optional<std::uint8_t> deviceNumber;
    std::optional<std::uint8_t> functionNumber;
};

}  // namespace Type41::Types

/// Decoder of Onboard Devices Extended Information structures: one per device on the board.
class Type_41 final : public Decoder<Type_41, Type41::Types::Type41Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::OnboardDevicesExtendedInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type41::Types::Type41Struct& record);
};

}  // namespace SMBIOS::Structures
