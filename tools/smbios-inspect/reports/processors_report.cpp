#include "smbios-inspect/reports/processors_report.h"

#include <cstdint>
#include <iterator>
#include <limits>
#include <ostream>
#include <string>

#include "common/format.h"
#include "manager/smbios_manager.h"
#include "smbios-inspect/output/column_table.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/reports/getter_values.h"
#include "smbios-inspect/reports/rows_report.h"
#include "smbios/processor_info.h"

namespace SMBIOS::Inspect {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;
using Parsers::ProcessorInfo;

namespace {

constexpr RowValue<ProcessorInfo> kValues[] = {
    {"Version", ValueOf<&ProcessorInfo::GetVersion>},
    {"Manufacturer", ValueOf<&ProcessorInfo::GetManufacturer>},
    {"SocketDesignation", ValueOf<&ProcessorInfo::GetSocketDesignation>},
    {"DeviceId", ValueOf<&ProcessorInfo::GetDeviceId>},
    {"Caption", ValueOf<&ProcessorInfo::GetCaption>},
    {"Description", ValueOf<&ProcessorInfo::GetDescription>},
    {"Type", ValueOf<&ProcessorInfo::GetType>},
    {"StringifiedType", ValueOf<&ProcessorInfo::GetStringifiedType>},
    {"Family", ValueOf<&ProcessorInfo::GetFamily>},
    {"StringifiedFamily", ValueOf<&ProcessorInfo::GetStringifiedFamily>},
    {"ProcessorID", ValueOf<&ProcessorInfo::GetProcessorID>},
    {"IsLegacyVoltageInfo", ValueOf<&ProcessorInfo::IsLegacyVoltageInfo>},
    {"LegacyVoltageInfo",
     TextsOf<&ProcessorInfo::GetLegacyVoltageInfoSize, &ProcessorInfo::GetLegacyVoltageInfo>},
    {"NonLegacyVoltageValue", ValueOf<&ProcessorInfo::GetNonLegacyVoltageValue>},
    {"ExternalClockInMHz", ValueOf<&ProcessorInfo::GetExternalClockInMHz>},
    {"MaxSpeedInMHz", ValueOf<&ProcessorInfo::GetMaxSpeedInMHz>},
    {"CurrentSpeedInMHz", ValueOf<&ProcessorInfo::GetCurrentSpeedInMHz>},
    {"IsSocketPopulated", ValueOf<&ProcessorInfo::IsSocketPopulated>},
    {"StringifiedStatus", ValueOf<&ProcessorInfo::GetStringifiedStatus>},
    {"Upgrade", ValueOf<&ProcessorInfo::GetUpgrade>},
    {"StringifiedUpgrade", ValueOf<&ProcessorInfo::GetStringifiedUpgrade>},
    {"L1CacheHandle", ValueOf<&ProcessorInfo::GetL1CacheHandle>},
    {"L2CacheHandle", ValueOf<&ProcessorInfo::GetL2CacheHandle>},
    {"L3CacheHandle", ValueOf<&ProcessorInfo::GetL3CacheHandle>},
    {"L1CacheSizeInKB", ValueOf<&ProcessorInfo::GetL1CacheSizeInKB>},
    {"L2CacheSizeInKB", ValueOf<&ProcessorInfo::GetL2CacheSizeInKB>},
    {"L3CacheSizeInKB", ValueOf<&ProcessorInfo::GetL3CacheSizeInKB>},
    {"SerialNumber", ValueOf<&ProcessorInfo::GetSerialNumber>},
    {"AssetTag", ValueOf<&ProcessorInfo::GetAssetTag>},
    {"PartNumber", ValueOf<&ProcessorInfo::GetPartNumber>},
    {"CoreCount", ValueOf<&ProcessorInfo::GetCoreCount>},
    {"EnabledCoreCount", ValueOf<&ProcessorInfo::GetEnabledCoreCount>},
    {"ThreadCount", ValueOf<&ProcessorInfo::GetThreadCount>},
    {"EnabledThreadCount", ValueOf<&ProcessorInfo::GetEnabledThreadCount>},
    {"SocketType", ValueOf<&ProcessorInfo::GetSocketType>},
    {"AddrWidth", ValueOf<&ProcessorInfo::GetAddrWidth>},
    {"DataWidth", ValueOf<&ProcessorInfo::GetDataWidth>},
    {"VirtualizationFirmwareEnabled", ValueOf<&ProcessorInfo::GetVirtualizationFirmwareEnabled>},
    {"ProcessorCharacteristics", ValueOf<&ProcessorInfo::GetProcessorCharacteristics>},
    {"RawData", RawDataOf<ProcessorInfo>},
    {"StringSession", TextsOf<&ProcessorInfo::GetStringSessionSize, &ProcessorInfo::DumpStringSession>},
    {"HasError", ValueOf<&ProcessorInfo::HasError>},
    {"ErrorMessage", ValueOf<&ProcessorInfo::GetErrorMessage>},
};

std::string CacheText(std::uint64_t kilobytes) {
    return kilobytes == std::numeric_limits<std::uint64_t>::max() ? std::string()
                                                                  : ByteSizeText(kilobytes * 1024);
}

/// "12 (10 enabled)": what is enabled only when that is known and another number.
std::string CountsText(std::uint16_t count, std::uint16_t enabled) {
    std::string text = NumberText(count);
    if (!text.empty() && enabled != count && !NumberText(enabled).empty()) {
        text += " (" + NumberText(enabled) + " enabled)";
    }
    return text;
}

std::string VoltageText(const ProcessorInfo& info, std::size_t index) {
    const float volts = info.GetNonLegacyVoltageValue(index);
    if (volts != std::numeric_limits<float>::max()) {
        return Common::format("{:.1f} V", volts);
    }
    std::string text;
    for (std::size_t i = 0; i < info.GetLegacyVoltageInfoSize(index); ++i) {
        text += (text.empty() ? "" : ", ") + std::string(info.GetLegacyVoltageInfo(index, i));
    }
    return text;
}

void PrintTable(const ProcessorInfo& info, const OutputStyle& style, std::ostream& output) {
    ColumnTable table({"SOCKET",
                       "NAME",
                       "CORES",
                       "THREADS",
                       "SPEED",
                       "MAXIMUM",
                       "L1 MAX",
                       "L2 MAX",
                       "L3 MAX",
                       "VOLTAGE",
                       "STATUS"},
                      "no processors");
    for (std::size_t i = 0; i < info.GetCPUCount(); ++i) {
        table.Add({TextOrNothing(info.GetSocketDesignation(i)),
                   TextOrNothing(info.GetVersion(i)),
                   CountsText(info.GetCoreCount(i), info.GetEnabledCoreCount(i)),
                   CountsText(info.GetThreadCount(i), info.GetEnabledThreadCount(i)),
                   NumberText(info.GetCurrentSpeedInMHz(i), " MHz"),
                   NumberText(info.GetMaxSpeedInMHz(i), " MHz"),
                   CacheText(info.GetL1CacheSizeInKB(i)),
                   CacheText(info.GetL2CacheSizeInKB(i)),
                   CacheText(info.GetL3CacheSizeInKB(i)),
                   VoltageText(info, i),
                   TextOrNothing(info.GetStringifiedStatus(i))});
    }
    table.Print(style, output);
}

}  // namespace

void ReportProcessors(const Request& request, const OutputStyle& style, std::ostream& output) {
    ProcessorInfo info;
    info.RetrieveInfo();
    const SmbiosManager& manager = *SmbiosManager::GetInstance();
    const RowsReport<ProcessorInfo, std::size(kValues)> report{
        "processors",
        kValues,
        PrintTable,
        UnlistedStructures{.listed = info.GetCPUCount(),
                           .total = manager.GetStructuresByType(StructureTypes::ProcessorInformation).size(),
                           .noun = "processor",
                           .identifier = "a processor id",
                           .type = 4},
    };
    report.Print(info, request, style, output);
}

}  // namespace SMBIOS::Inspect
