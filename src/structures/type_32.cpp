#include "structures/type_32.h"

#include <string_view>

#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type32::Types::Type32Struct;

namespace {

constexpr auto kBootStatusNames = ByteTable({
    {0x00, "No errors detected"},
    {0x01, "No bootable media"},
    {0x02, "\"Normal\" operating system failed to load"},
    {0x03, "Firmware-detected hardware failure"},
    {0x04, "OS-detected hardware failure"},
    {0x05, "User-requested boot"},
    {0x06, "System security violation"},
    {0x07, "Previously requested image"},
    {0x08, "System watchdog timer expired"},
});

std::string_view BootStatusName(std::uint8_t code) {
    if (const auto name = kBootStatusNames.Find(code)) {
        return *name;
    }
    if (code >= 192) {
        return "Product-specific";
    }
    return code >= 128 ? "OEM/vendor-specific" : "Unknown";
}

}  // namespace

constinit const ParseRules Type_32::kRules = {.versions = VersionAtLeast(v2_3_0)};

void Type_32::DecodeFieldsInOrder(StructureReader& in, Type32Struct& record) {
    const auto bootStatusData = in.Bytes<10>(0x0A);
    const std::uint8_t code = in.Byte(0x13);  // departs from the standard: the last byte, not the first

    record.bootStatusValue = code;
    record.bootStatusData.emplace(bootStatusData.begin(), bootStatusData.end());
    record.bootStatus = BootStatusName(code);
}

}  // namespace SMBIOS::Structures
