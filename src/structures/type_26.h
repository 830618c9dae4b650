#pragma once

#include "structures/decoder.h"
#include "structures/probe.h"

namespace SMBIOS::Structures {

namespace Type26::Types {

/// Record of one Voltage Probe. Values are in millivolts.
struct Type26Struct : ProbeRecord {};

}  // namespace Type26::Types

/// Decoder of Voltage Probe structures: one per sensor of a supply voltage.
class Type_26 final : public Decoder<Type_26, Type26::Types::Type26Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::VoltageProbe;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type26::Types::Type26Struct& record);
};

}  // namespace SMBIOS::Structures
