#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "structures/decoder.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

namespace Type8::Types {

/// Record of one Port Connector Information.
struct Type8Struct : StructureRecord {
    std::optional<std::uint8_t> internalConnectorType;
    std::optional<std::uint8_t> externalConnectorType;
    std::optional<std::uint8_t> portType;
    std::string internalReferenceDesignator;
    std::string externalReferenceDesignator;
    std::string internalConnectorTypeName;
    std::string externalConnectorTypeName;
    std::string portTypeName;
};

}  // namespace Type8::Types

/// Decoder of Port Connector Information structures: one per port of the system.
class Type_8 final : public Decoder<Type_8, Type8::Types::Type8Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::PortConnectorInformation;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type8::Types::Type8Struct& record);
};

}  // namespace SMBIOS::Structures
