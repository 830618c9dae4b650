#pragma once

#include "structures/decoder.h"
#include "structures/probe.h"

namespace SMBIOS::Structures {

namespace Type29::Types {

/// Record of one Electrical Current Probe. Values are in milliamperes.
struct Type29Struct : ProbeRecord {};

}  // namespace Type29::Types

/// Decoder of Electrical Current Probe structures: one per sensor of a supply current.
class Type_29 final : public Decoder<Type_29, Type29::Types::Type29Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::ElectricalCurrentProbe;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type29::Types::Type29Struct& record);
};

}  // namespace SMBIOS::Structures
