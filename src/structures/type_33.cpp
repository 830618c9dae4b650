#include "structures/type_33.h"

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type33::Types::Type33Struct;

namespace {

constexpr std::uint32_t kUnknownResolution = 0x80000000;
constexpr std::uint64_t kUnknownAddress = 0x8000000000000000;

}  // namespace

constinit const ParseRules Type_33::kRules = {
    .versions = VersionAtLeast(v2_3_0),
    .strings = StringSetRule::onSuccess,
};

void Type_33::DecodeFieldsInOrder(StructureReader& in, Type33Struct& record) {
    DecodeErrorCodes(in, record);
    record.errorResolution = HexTextUnless(kUnknownResolution, in.Dword(0x1B));
    record.deviceErrorAddress = HexTextUnless(kUnknownAddress, in.Qword(0x13));
    record.memoryArrayErrorAddress = HexTextUnless(kUnknownAddress, in.Qword(0x0B));
    record.vendorSyndrome = HexText(in.Dword(0x07));  // departs from the standard: 0 is not "unknown"
}

}  // namespace SMBIOS::Structures
