#include "structures/type_43.h"

#include "common/format.h"
#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type43::Types::Type43Struct;

namespace {

constexpr const char* kTpmCharacteristicNames[] = {
    "dontCare",
    "dontCare",
    "NotSupported",
    "FamilyConfigurableViaFirmwareUpdate",
    "FamilyConfigurableViaPlatformSoftwareSupport",
    "FamilyConfigurableViaOEMProprietaryMechanism",
};

std::string VendorIdOf(const StructureReader& in) {
    const auto characters = in.Bytes<4>(0x04);
    return {characters.begin(), characters.end()};
}

bool IsVersion1(const StructureReader& in) {
    return in.Byte(0x08) == 1;
}

std::string FirmwareVersionOf(const StructureReader& in) {
    if (IsVersion1(in)) {
        return Common::format("{}.{}.{}.{}", in.Byte(0x0A), in.Byte(0x0B), in.Byte(0x0C), in.Byte(0x0D));
    }
    return Common::format("{:X}-{:X}", in.Dword(0x0A), in.Dword(0x0E));
}

}  // namespace

constinit const ParseRules Type_43::kRules = {.lengths = LengthExactly(0x1F)};

void Type_43::DecodeFieldsInOrder(StructureReader& in, Type43Struct& record) {
    record.firmwareVersion1 = in.Dword(0x0A);
    record.oemDefined = in.Dword(0x1B);
    record.majorSpecVersion = in.Byte(0x08);
    record.minorSpecVersion = in.Byte(0x09);
    record.specVersion = Common::format("{}.{}", in.Byte(0x08), in.Byte(0x09));
    record.vendorId = VendorIdOf(in);
    record.characteristics.emplace(in.Qword(0x13), 64, kTpmCharacteristicNames);
    record.description = in.String(0x12);
    if (!IsVersion1(in)) {
        record.firmwareVersion2 = in.Dword(0x0E);
    }
    record.firmwareVersion = FirmwareVersionOf(in);
}

}  // namespace SMBIOS::Structures
