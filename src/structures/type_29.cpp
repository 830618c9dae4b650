#include "structures/type_29.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type29::Types::Type29Struct;

namespace {

constexpr ProbeFactors kFactors = {.value = 1.0F, .resolution = 0.1F, .tolerance = 1.0F, .accuracy = 0.01F};

}  // namespace

constinit const ParseRules Type_29::kRules = {.versions = VersionAtLeast(v2_2_0)};

void Type_29::DecodeFieldsInOrder(StructureReader& in, Type29Struct& record) {
    DecodeProbe(in, kElectricalProbeLocationNames.Rows(), kFactors, record);
}

}  // namespace SMBIOS::Structures
