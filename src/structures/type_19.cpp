#include "structures/type_19.h"

#include "structures/decoding.h"
#include "structures/mapped_address.h"

namespace SMBIOS::Structures {

using Type19::Types::Type19Struct;

namespace {

// Deliberately refuses a single length: an old table's longer structures are accepted.
constexpr Gate kGates[] = {
    {LengthExactly(0x1F), VersionBelow(v2_7_0), "v2.7.0 structure or later in a v2.6.1 BIOS or older"},
};

}  // namespace

constinit const ParseRules Type_19::kRules = {
    .versions = VersionAtLeast(v2_1_0),
    .gates = kGates,
    .strings = StringSetRule::onSuccess,
};

void Type_19::DecodeFieldsInOrder(StructureReader& in, Type19Struct& record) {
    record.partitionWidth = in.Byte(0x0E);
    record.memoryArrayHandle = in.Word(0x0C);
    record.startingAddress = MappedAddress(in, 0x04, 0x0F);
    record.endingAddress = MappedAddress(in, 0x08, 0x17);
}

}  // namespace SMBIOS::Structures
