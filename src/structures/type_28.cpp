#include "structures/type_28.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type28::Types::Type28Struct;

namespace {

constexpr auto kTemperatureProbeLocationNames = ByteTable({
    {0x03, "Processor"},
    {0x04, "Disk"},
    {0x05, "Peripheral Bay"},
    {0x06, "System Management Module"},
    {0x07, "Motherboard"},
    {0x08, "Memory Module"},
    {0x09, "Processor Module"},
    {0x0A, "Power Unit"},
    {0x0B, "Add-in Card"},
    {0x0C, "Front Panel Board"},
    {0x0D, "Back Panel Board"},
    {0x0E, "Power System Board"},
    {0x0F, "Drive Back Plane"},
});
static_assert(kTemperatureProbeLocationNames.Rows().size() == 13);

constexpr ProbeFactors kFactors = {.value = 0.1F, .resolution = 0.001F, .tolerance = 0.1F, .accuracy = 0.01F};

}  // namespace

constinit const ParseRules Type_28::kRules = {.versions = VersionAtLeast(v2_2_0)};

void Type_28::DecodeFieldsInOrder(StructureReader& in, Type28Struct& record) {
    DecodeProbe(in, kTemperatureProbeLocationNames.Rows(), kFactors, record);
}

}  // namespace SMBIOS::Structures
