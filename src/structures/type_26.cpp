#include "structures/type_26.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type26::Types::Type26Struct;

namespace {

constexpr ProbeFactors kFactors = {.value = 1.0F, .resolution = 0.1F, .tolerance = 1.0F, .accuracy = 0.01F};

}  // namespace

constinit const ParseRules Type_26::kRules = {.versions = VersionAtLeast(v2_2_0)};

void Type_26::DecodeFieldsInOrder(StructureReader& in, Type26Struct& record) {
    DecodeProbe(in, kElectricalProbeLocationNames.Rows(), kFactors, record);
}

}  // namespace SMBIOS::Structures
