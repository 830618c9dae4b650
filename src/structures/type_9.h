#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "common/dynamic_bitset.h"
#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type9::Types {

/// One more device that shares the slot.
struct PeerGroup {
    std::uint16_t segmentGroupNumber = 0;
    std::uint8_t busNumber = 0;
    std::uint8_t deviceNumber = 0;
    std::uint8_t functionNumber = 0;
    std::uint8_t dataBusWidth = 0;
};
static_assert(sizeof(PeerGroup) == 6);

/// Record of one System Slots.
struct Type9Struct : StructureRecord {
    std::string slotDesignation;
    std::optional<std::uint8_t> slotType;
    std::string slotTypeName;
    std::optional<std::uint8_t> slotDataBusWidth;
    std::string slotDataBusWidthName;
    std::optional<std::uint8_t> currentUsage;
    std::string currentUsageName;
    std::optional<std::uint8_t> slotLength;
    std::string slotLengthName;
    std::optional<std::uint16_t> slotId;
    std::optional<Common::Dynamic_BitSet> slotCharacteristics1;
    std::optional<Common::Dynamic_BitSet> slotCharacteristics2;
    std::optional<std::uint16_t> segmentGroupNumber;
    std::optional<std::uint8_t> busNumber;
    std::optional<std::uint8_t> deviceNumber;
    std::optional<std::uint8_t> functionNumber;
    std::optional<std::uint8_t> dataBusWidth;
    std::string dataBusWidthName;
    std::optional<std::vector<PeerGroup>> peerGroups;
    std::optional<std::uint8_t> slotHeight;
    std::string slotHeightName;
    std::optional<float> slotPitch;  ///< millimetres
    std::optional<std::uint8_t> slotPhysicalWidth;
    std::string slotPhysicalWidthName;
    std::optional<std::uint8_t> slotInformation;
};

}  // namespace Type9::Types

/// Decoder of System Slots structures: one per slot of the system.
class Type_9 final : public Decoder<Type_9, Type9::Types::Type9Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::SystemSlots;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type9::Types::Type9Struct& record);
};

}  // namespace SMBIOS::Structures
