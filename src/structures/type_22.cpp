#include "structures/type_22.h"

#include <string_view>

#include "common/format.h"
#include "structures/decoding.h"

namespace SMBIOS::Structures {

using Type22::Types::Type22Struct;

namespace {

constexpr Gate kGates[] = {
    {LengthAtLeast(0x11), VersionBelow(v2_2_0), "v2.2.0 structure or later in a v2.1.0 BIOS or older"},
};

constexpr auto kBatteryChemistryNames = ByteTable({
    {0x03, "Lead Acid"},
    {0x04, "Nickel Cadmium"},
    {0x05, "Nickel metal hydride"},
    {0x06, "Lithium-ion"},
    {0x07, "Zinc air"},
    {0x08, "Lithium Polymer"},
});

constexpr std::uint8_t kUnknownChemistry = 0x02;

/// A packed date: year since 1980, month and day in 7, 4 and 5 bits.
std::string DateText(std::uint16_t date) {
    return Common::format("{:04}-{:02}-{:02}", (date >> 9) + 1980, (date >> 5) & 0x0F, date & 0x1F);
}

std::string ManufactureDateOf(const StructureReader& in) {
    if (in.Byte(0x06) != 0) {
        return in.String(0x06);
    }
    return in.VersionIsAtLeast(v2_2_0) ? DateText(in.Word(0x12)) : std::string();
}

std::optional<std::uint64_t> DesignCapacityOf(const StructureReader& in) {
    const std::uint64_t capacity = in.Word(0x0A);
    if (capacity == 0) {
        return std::nullopt;
    }
    return in.VersionIsAtLeast(v2_2_0) ? capacity * in.Byte(0x15) : capacity;
}

std::string SerialNumberOf(const StructureReader& in) {
    if (in.Byte(0x07) != 0) {
        return in.String(0x07);
    }
    return in.VersionIsAtLeast(v2_2_0) ? Common::format("{}", in.Word(0x10)) : std::string();
}

std::string_view ChemistryNameOf(const StructureReader& in) {
    if (in.Byte(0x09) == kUnknownChemistry && in.VersionIsAtLeast(v2_2_0)) {
        // Departs from the standard: the number of the SBDS chemistry string is read as a chemistry code.
        return kBatteryChemistryNames[in.Byte(0x14)];
    }
    return kBatteryChemistryNames[in.Byte(0x09)];
}

}  // namespace

constinit const ParseRules Type_22::kRules = {
    .versions = VersionAtLeast(v2_1_0),
    .gates = kGates,
};

void Type_22::DecodeFieldsInOrder(StructureReader& in, Type22Struct& record) {
    record.manufactureDate = ManufactureDateOf(in);
    record.location = in.String(0x04);
    record.deviceName = in.String(0x08);
    record.manufacturer = in.String(0x05);
    record.sbdsVersionNumber = in.String(0x0E);
    record.designCapacity = DesignCapacityOf(in);
    record.serialNumber = SerialNumberOf(in);
    record.deviceChemistryValue = ValueUnless(kUnknownChemistry, in.Byte(0x09));
    record.deviceChemistry = ChemistryNameOf(in);
    record.designVoltage = ValueUnless(0, in.Word(0x0C));
    record.maximumErrorInBatteryData = ValueUnless(0xFF, in.Byte(0x0F));

    if (in.VersionIsAtLeast(v2_2_0)) {
        record.oemSpecific = in.Dword(0x16);
    }
}

}  // namespace SMBIOS::Structures
