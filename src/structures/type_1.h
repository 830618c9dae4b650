#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type1::Types {

/// Record of the System Information.
struct Type1Struct : StructureRecord {
    std::string manufacturer;
    std::string productName;
    std::string version;
    std::string serialNumber;
    std::string uuid;
    std::optional<std::uint8_t> wakeUpTypeValue;
    std::string wakeUpType;
    std::string skuNumber;
    std::string family;
};

}  // namespace Type1::Types

/// Decoder of the System Information structure: the computer as a product.
class Type_1 final : public Decoder<Type_1, Type1::Types::Type1Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::SystemInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type1::Types::Type1Struct& record);
};

}  // namespace SMBIOS::Structures
