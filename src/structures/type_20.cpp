#include "structures/type_20.h"

#include "structures/decoding.h"
#include "structures/mapped_address.h"

namespace SMBIOS::Structures {

using Type20::Types::Type20Struct;

namespace {

// Deliberately refuses a single length: an old table's longer structures are accepted.
constexpr Gate kGates[] = {
    {LengthExactly(0x23), VersionBelow(v2_7_0), "v2.7.0 structure or later in a v2.6.1 BIOS or older"},
};

/// Position among the rows of a partition, counted from 1.
std::optional<std::uint8_t> PartitionRowPositionOf(const StructureReader& in) {
    const std::uint8_t position = in.Byte(0x10);
    return position == 0x00 ? std::nullopt : ValueUnless(0xFF, position);
}

}  // namespace

constinit const ParseRules Type_20::kRules = {
    .versions = VersionAtLeast(v2_1_0),
    .gates = kGates,
    .strings = StringSetRule::onSuccess,
};

void Type_20::DecodeFieldsInOrder(StructureReader& in, Type20Struct& record) {
    record.memoryDeviceHandle = in.Word(0x0C);
    record.memoryArrayMappedAddressHandle = in.Word(0x0E);
    record.partitionRowPosition = PartitionRowPositionOf(in);
    record.interleavePosition = ValueUnless(0xFF, in.Byte(0x11));
    record.interleavedDataDepth = ValueUnless(0xFF, in.Byte(0x12));
    record.startingAddress = MappedAddress(in, 0x04, 0x13);
    record.endingAddress = MappedAddress(in, 0x08, 0x1B);
}

}  // namespace SMBIOS::Structures
