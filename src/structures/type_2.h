#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type2::Types {

/// What a board is, with what each feature implies: hot swappable means replaceable, which means removable.
struct BoardFeatureFlags {
    bool hotSwappable = false;
    bool removable = false;
    bool replaceable = false;
    bool hostingBoard = false;
    bool requiresDaughterBoard = false;
    std::uint8_t raw = 0;  ///< without the implications
};

/// Record of one baseboard or module.
struct Type2Struct : StructureRecord {
    std::string manufacturer;
    std::string product;
    std::string version;
    std::string serialNumber;
    std::string assetTag;
    std::optional<BoardFeatureFlags> featureFlags;
    std::string locationInChassis;
    std::optional<std::uint16_t> chassisHandle;
    std::optional<std::uint8_t> boardTypeValue;
    std::string boardType;
    std::optional<std::vector<std::uint16_t>> containedObjectHandles;
};

}  // namespace Type2::Types

/// Decoder of Baseboard (or Module) Information structures.
class Type_2 final : public Decoder<Type_2, Type2::Types::Type2Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::BaseboardInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type2::Types::Type2Struct& record);
};

}  // namespace SMBIOS::Structures
