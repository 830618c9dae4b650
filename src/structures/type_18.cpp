#include "structures/type_18.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type18::Types::Type18Struct;

namespace {

// Departs from the standard: its marker of an unknown address or resolution, 0x80000000, is a value here.
constexpr std::uint32_t kNoValue = 0xFFFFFFFF;

}  // namespace

constinit const ParseRules Type_18::kRules = {
    .lengths = LengthExactly(0x17),
    .versions = VersionAtLeast(v2_1_0),
    .strings = StringSetRule::onSuccess,
};

void Type_18::DecodeFieldsInOrder(StructureReader& in, Type18Struct& record) {
    DecodeErrorCodes(in, record);
    record.vendorSyndrome = HexTextUnless(0, in.Dword(0x07));
    record.errorResolution = HexTextUnless(kNoValue, in.Dword(0x13));
    record.deviceErrorAddress = HexTextUnless(kNoValue, in.Dword(0x0F));
    record.memoryArrayErrorAddress = HexTextUnless(kNoValue, in.Dword(0x0B));
}

}  // namespace SMBIOS::Structures
