#pragma once

#include "structures/decoder.h"
#include "structures/probe.h"

namespace SMBIOS::Structures {

namespace Type28::Types {

/// Record of one Temperature Probe. Values are in degrees Celsius.
struct Type28Struct : ProbeRecord {};

}  // namespace Type28::Types

/// Decoder of Temperature Probe structures: one per temperature sensor.
class Type_28 final : public Decoder<Type_28, Type28::Types::Type28Struct> {
public:
    static constexpr StructureTypes kKey = StructureTypes::TemperatureProbe;
    using Decoder::Decoder;

private:
    friend Decoder;
    static const ParseRules kRules;
    static void DecodeFieldsInOrder(StructureReader& in, Type28::Types::Type28Struct& record);
};

}  // namespace SMBIOS::Structures
