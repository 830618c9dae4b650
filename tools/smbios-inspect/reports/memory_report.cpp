#include "smbios-inspect/reports/memory_report.h"

#include <cstdint>
#include <iterator>
#include <limits>
#include <ostream>
#include <string>

#include "manager/smbios_manager.h"
#include "smbios-inspect/output/column_table.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/memory_size.h"
#include "smbios-inspect/reports/getter_values.h"
#include "smbios-inspect/reports/rows_report.h"
#include "smbios/memory_info.h"

namespace SMBIOS::Inspect {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;
using Parsers::MemoryInfo;

namespace {

constexpr RowValue<MemoryInfo> kValues[] = {
    {"DeviceSet", ValueOf<&MemoryInfo::GetDeviceSet>},
    {"DataWidth", ValueOf<&MemoryInfo::GetDataWidth>},
    {"TotalWidth", ValueOf<&MemoryInfo::GetTotalWidth>},
    {"MemoryType", ValueOf<&MemoryInfo::GetMemoryType>},
    {"StringifiedMemoryType", ValueOf<&MemoryInfo::GetStringifiedMemoryType>},
    {"PhysicalMemoryArrayHandle", ValueOf<&MemoryInfo::GetPhysicalMemoryArrayHandle>},
    {"MemoryErrorInformationHandle", ValueOf<&MemoryInfo::GetMemoryErrorInformationHandle>},
    {"FormFactor", ValueOf<&MemoryInfo::GetFormFactor>},
    {"StringifiedFormFactor", ValueOf<&MemoryInfo::GetStringifiedFormFactor>},
    {"DeviceLocator", ValueOf<&MemoryInfo::GetDeviceLocator>},
    {"TypeDetail", ValueOf<&MemoryInfo::GetTypeDetail>},
    {"BitsetTypeDetail", ValueOf<&MemoryInfo::GetBitsetTypeDetail>},
    {"Speed", ValueOf<&MemoryInfo::GetSpeed>},
    {"Manufacturer", ValueOf<&MemoryInfo::GetManufacturer>},
    {"SerialNumber", ValueOf<&MemoryInfo::GetSerialNumber>},
    {"AssetTag", ValueOf<&MemoryInfo::GetAssetTag>},
    {"PartNumber", ValueOf<&MemoryInfo::GetPartNumber>},
    {"Rank", ValueOf<&MemoryInfo::GetRank>},
    {"ConfiguredSpeed", ValueOf<&MemoryInfo::GetConfiguredSpeed>},
    {"MinVoltageInmV", ValueOf<&MemoryInfo::GetMinVoltageInmV>},
    {"MaxVoltageInmV", ValueOf<&MemoryInfo::GetMaxVoltageInmV>},
    {"ConfiguredVoltageInmV", ValueOf<&MemoryInfo::GetConfiguredVoltageInmV>},
    {"MemoryTechnology", ValueOf<&MemoryInfo::GetMemoryTechnology>},
    {"StringifiedMemoryTechnology", ValueOf<&MemoryInfo::GetStringifiedMemoryTechnology>},
    {"MemoryOperatingModeCapability", ValueOf<&MemoryInfo::GetMemoryOperatingModeCapability>},
    {"StringifiedMemoryOperatingModeCapability",
     ValueOf<&MemoryInfo::GetStringifiedMemoryOperatingModeCapability>},
    {"FirmwareVersion", ValueOf<&MemoryInfo::GetFirmwareVersion>},
    {"CacheSize", ValueOf<&MemoryInfo::GetCacheSize>},
    {"LogicalSize", ValueOf<&MemoryInfo::GetLogicalSize>},
    {"VolatileSize", ValueOf<&MemoryInfo::GetVolatileSize>},
    {"NonVolatileSize", ValueOf<&MemoryInfo::GetNonVolatileSize>},
    {"ModuleProductId", ValueOf<&MemoryInfo::GetModuleProductId>},
    {"ModuleManufacturerId", ValueOf<&MemoryInfo::GetModuleManufacturerId>},
    {"MemorySubsystemControllerManufacturerId",
     ValueOf<&MemoryInfo::GetMemorySubsystemControllerManufacturerId>},
    {"MemorySubsystemControllerProductId", ValueOf<&MemoryInfo::GetMemorySubsystemControllerProductId>},
    {"RCDManufacturerId", ValueOf<&MemoryInfo::GetRCDManufacturerId>},
    {"RCDRevisionNumber", ValueOf<&MemoryInfo::GetRCDRevisionNumber>},
    {"PMIC0ManufacturerId", ValueOf<&MemoryInfo::GetPMIC0ManufacturerId>},
    {"PMIC0RevisionNumber", ValueOf<&MemoryInfo::GetPMIC0RevisionNumber>},
    {"BankLocator", ValueOf<&MemoryInfo::GetBankLocator>},
    {"PositionInRow", ValueOf<&MemoryInfo::GetPositionInRow>},
    {"SizeInKB", ValueOf<&MemoryInfo::GetSizeInKB>},
    {"RawData", RawDataOf<MemoryInfo>},
    {"StringSession", TextsOf<&MemoryInfo::GetStringSessionSize, &MemoryInfo::DumpStringSession>},
    {"HasError", ValueOf<&MemoryInfo::HasError>},
    {"ErrorMessage", ValueOf<&MemoryInfo::GetErrorMessage>},
};

std::string SizeText(const MemoryInfo& info, std::size_t index) {
    const std::uint64_t size = info.GetSizeInKB(index);
    if (size == std::numeric_limits<std::uint64_t>::max()) {
        return {};
    }
    std::size_t rawSize = 0;
    const std::uint8_t* const raw = info.DumpRawData(index, rawSize);
    return ByteSizeText(MemoryDeviceBytes(size, {raw, rawSize}).value_or(size));
}

/// 0 is how the firmware says that it does not know.
template <class Number>
std::string KnownNumberText(Number number, const char* unit) {
    return number == 0 ? std::string() : NumberText(number, unit);
}

void PrintTable(const MemoryInfo& info, const OutputStyle& style, std::ostream& output) {
    ColumnTable table({"LOCATOR",
                       "BANK",
                       "SIZE",
                       "TYPE",
                       "FORM FACTOR",
                       "SPEED",
                       "RUNS AT",
                       "VOLTAGE",
                       "MANUFACTURER",
                       "PART NUMBER",
                       "SERIAL NUMBER"},
                      "no memory devices");
    for (std::size_t i = 0; i < info.GetMemoryDeviceCount(); ++i) {
        table.Add({TextOrNothing(info.GetDeviceLocator(i)),
                   TextOrNothing(info.GetBankLocator(i)),
                   SizeText(info, i),
                   TextOrNothing(info.GetStringifiedMemoryType(i)),
                   TextOrNothing(info.GetStringifiedFormFactor(i)),
                   KnownNumberText(info.GetSpeed(i), " MT/s"),
                   KnownNumberText(info.GetConfiguredSpeed(i), " MT/s"),
                   KnownNumberText(info.GetConfiguredVoltageInmV(i), " mV"),
                   TextOrNothing(info.GetManufacturer(i)),
                   TextOrNothing(info.GetPartNumber(i)),
                   TextOrNothing(info.GetSerialNumber(i))});
    }
    table.Print(style, output);
}

}  // namespace

void ReportMemory(const Request& request, const OutputStyle& style, std::ostream& output) {
    MemoryInfo info;
    info.RetrieveInfo();
    const SmbiosManager& manager = *SmbiosManager::GetInstance();
    const RowsReport<MemoryInfo, std::size(kValues)> report{
        "devices",
        kValues,
        PrintTable,
        UnlistedStructures{.listed = info.GetMemoryDeviceCount(),
                           .total = manager.GetStructuresByType(StructureTypes::MemoryDevice).size(),
                           .noun = "memory device",
                           .identifier = "a serial number",
                           .type = 17},
    };
    report.Print(info, request, style, output);
}

}  // namespace SMBIOS::Inspect
