#include "smbios/processor_info.h"

#include <unordered_map>

#include "manager/decoded_records.h"
#include "manager/smbios_manager.h"
#include "parsers/row_values.h"
#include "parsers/wmi_completion.h"
#include "structures/type_4.h"
#include "structures/type_7.h"

namespace SMBIOS::Parsers {

using Manager::SmbiosManager;
using Structures::Type_4;
using Structures::Type_7;
using Structures::Type4::Types::Type4Struct;
using Structures::Type7::Types::Type7Struct;

namespace {

constexpr WmiProperty<Type4Struct> kProcessorProperties[] = {
    {"DeviceID", &Type4Struct::deviceId},
    {"Name", &Type4Struct::processorVersion},
    {"Caption", &Type4Struct::caption},
    {"ProcessorId", &Type4Struct::processorId},
    {"L2CacheSize", &Type4Struct::l2CacheSize},
    {"L3CacheSize", &Type4Struct::l3CacheSize},
    {"NumberOfLogicalProcessors", &Type4Struct::threadCount},
    {"NumberOfEnabledCore", &Type4Struct::coreEnabled},
    {"NumberOfCores", &Type4Struct::coreCount},
    {"MaxClockSpeed", &Type4Struct::maxSpeed},
    {"Description", &Type4Struct::description},
    {"AddressWidth", &Type4Struct::addressWidth},
    {"DataWidth", &Type4Struct::dataWidth},
    {"VirtualizationFirmwareEnabled", &Type4Struct::virtualizationFirmwareEnabled},
    {"Manufacturer", &Type4Struct::processorManufacturer, Completion::always},
};

constexpr WmiSource<Type4Struct> kProcessor = {
    .className = "Win32_Processor",
    .keyProperty = "ProcessorId",
    .keyField = &Type4Struct::processorId,
    .properties = kProcessorProperties,
};

/// The caches of a table by their handles.
class Caches {
public:
    explicit Caches(const std::vector<std::shared_ptr<Type7Struct>>& caches) {
        for (const std::shared_ptr<Type7Struct>& cache : caches) {
            sizes_.try_emplace(cache->handle,
                               cache->maximumCacheSize);  // of one handle the first cache counts
        }
    }

    /// Maximum size of the cache with this handle; none when no cache has it.
    [[nodiscard]] std::optional<std::uint64_t> SizeOf(std::optional<std::uint16_t> handle) const {
        const auto cache = handle ? sizes_.find(*handle) : sizes_.end();
        return cache == sizes_.end() ? std::nullopt : cache->second;
    }

private:
    std::unordered_map<std::uint16_t, std::optional<std::uint64_t>> sizes_;
};

void LinkCaches(Type4Struct& processor, const Caches& caches) {
    processor.l1CacheSize = caches.SizeOf(processor.l1CacheHandle);
    processor.l2CacheSize = caches.SizeOf(processor.l2CacheHandle);
    processor.l3CacheSize = caches.SizeOf(processor.l3CacheHandle);
}

}  // namespace

struct ProcessorInfo::State {
    CompletedRecords<Type4Struct> processors{kProcessor};
};

ProcessorInfo::ProcessorInfo() : state_(new State) {}

ProcessorInfo::~ProcessorInfo() {
    delete state_;
}

void ProcessorInfo::RetrieveInfo() {
    SmbiosManager& manager = *SmbiosManager::GetInstance();
    manager.UpdateBiosInfo();
    state_->processors.ClearRows();
    const Caches caches(Manager::DecodedRecords<Type_7>(manager));
    state_->processors.Rebuild(Manager::DecodedRecords<Type_4>(manager),
                               [&](Type4Struct& processor) { LinkCaches(processor, caches); });
}

std::size_t ProcessorInfo::GetCPUCount() const noexcept {
    return state_->processors.Count();
}

const char* ProcessorInfo::GetVersion(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::processorVersion);
}

const char* ProcessorInfo::GetManufacturer(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::processorManufacturer);
}

const char* ProcessorInfo::GetSocketDesignation(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::socketDesignation);
}

const char* ProcessorInfo::GetDeviceId(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::deviceId);
}

const char* ProcessorInfo::GetCaption(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::caption);
}

const char* ProcessorInfo::GetDescription(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::description);
}

std::uint8_t ProcessorInfo::GetType(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::processorType);
}

const char* ProcessorInfo::GetStringifiedType(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::processorTypeName);
}

std::uint16_t ProcessorInfo::GetFamily(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::processorFamily);
}

const char* ProcessorInfo::GetStringifiedFamily(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::processorFamilyName);
}

const char* ProcessorInfo::GetProcessorID(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::processorId);
}

EBOOL ProcessorInfo::IsLegacyVoltageInfo(std::size_t index) const noexcept {
    return FlagOf(state_->processors.Row(index), &Type4Struct::legacyVoltageMode);
}

std::size_t ProcessorInfo::GetLegacyVoltageInfoSize(std::size_t index) const noexcept {
    const Type4Struct* const row = state_->processors.Row(index);
    return row == nullptr || !row->supportedVoltages ? 0 : row->supportedVoltages->size();
}

const char* ProcessorInfo::GetLegacyVoltageInfo(std::size_t index, std::size_t voltageIndex) const noexcept {
    return voltageIndex < GetLegacyVoltageInfoSize(index)
               ? (*state_->processors.Row(index)->supportedVoltages)[voltageIndex].c_str()
               : nullptr;
}

float ProcessorInfo::GetNonLegacyVoltageValue(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::currentVoltage);
}

std::uint16_t ProcessorInfo::GetExternalClockInMHz(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::externalClock);
}

std::uint16_t ProcessorInfo::GetMaxSpeedInMHz(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::maxSpeed);
}

std::uint16_t ProcessorInfo::GetCurrentSpeedInMHz(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::currentSpeed);
}

EBOOL ProcessorInfo::IsSocketPopulated(std::size_t index) const noexcept {
    EBOOL isPopulated;
    const Type4Struct* const row = state_->processors.Row(index);
    if (row != nullptr && row->statusText) {  // only a row of the firmware's has a status
        isPopulated = row->socketPopulated;
    }
    return isPopulated;
}

const char* ProcessorInfo::GetStringifiedStatus(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::statusText);
}

std::uint8_t ProcessorInfo::GetUpgrade(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::processorUpgrade);
}

const char* ProcessorInfo::GetStringifiedUpgrade(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::processorUpgradeName);
}

std::uint16_t ProcessorInfo::GetL1CacheHandle(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::l1CacheHandle);
}

std::uint16_t ProcessorInfo::GetL2CacheHandle(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::l2CacheHandle);
}

std::uint16_t ProcessorInfo::GetL3CacheHandle(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::l3CacheHandle);
}

std::uint64_t ProcessorInfo::GetL1CacheSizeInKB(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::l1CacheSize);
}

std::uint64_t ProcessorInfo::GetL2CacheSizeInKB(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::l2CacheSize);
}

std::uint64_t ProcessorInfo::GetL3CacheSizeInKB(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::l3CacheSize);
}

const char* ProcessorInfo::GetSerialNumber(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::serialNumber);
}

const char* ProcessorInfo::GetAssetTag(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::assetTag);
}

const char* ProcessorInfo::GetPartNumber(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::partNumber);
}

std::uint16_t ProcessorInfo::GetCoreCount(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::coreCount);
}

std::uint16_t ProcessorInfo::GetEnabledCoreCount(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::coreEnabled);
}

std::uint16_t ProcessorInfo::GetThreadCount(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::threadCount);
}

std::uint16_t ProcessorInfo::GetEnabledThreadCount(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::threadEnabled);
}

const char* ProcessorInfo::GetSocketType(std::size_t index) const noexcept {
    return TextOf(state_->processors.Row(index), &Type4Struct::socketType);
}

std::uint16_t ProcessorInfo::GetAddrWidth(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::addressWidth);
}

std::uint16_t ProcessorInfo::GetDataWidth(std::size_t index) const noexcept {
    return NumberOf(state_->processors.Row(index), &Type4Struct::dataWidth);
}

EBOOL ProcessorInfo::GetVirtualizationFirmwareEnabled(std::size_t index) const noexcept {
    return FlagOf(state_->processors.Row(index), &Type4Struct::virtualizationFirmwareEnabled);
}

PROCESSOR_CHARACTERISTICS ProcessorInfo::GetProcessorCharacteristics(std::size_t index) const {
    PROCESSOR_CHARACTERISTICS characteristics;
    const Type4Struct* const row = state_->processors.Row(index);
    if (row == nullptr || !row->characteristicsFlags || !row->processorCharacteristics) {
        return characteristics;
    }
    const Common::Dynamic_BitSet& flags = *row->characteristicsFlags;
    characteristics.characteristicsLow = static_cast<std::uint8_t>(*row->processorCharacteristics & 0xFFU);
    characteristics.capable64bit = flags.Test(2);
    characteristics.multiCore = flags.Test(3);
    characteristics.hardwareThread = flags.Test(4);
    characteristics.executeProtection = flags.Test(5);
    characteristics.enhacedVirtualization = flags.Test(6);
    characteristics.powerPerformanceControl = flags.Test(7);
    characteristics.capable128bit = flags.Test(8);
    characteristics.arm64SoC_ID = flags.Test(9);
    return characteristics;
}

std::uint8_t* ProcessorInfo::DumpRawData(std::size_t index, std::size_t& size) const noexcept {
    return RawDataOf(state_->processors.Row(index), size);
}

std::size_t ProcessorInfo::GetStringSessionSize(std::size_t index) const noexcept {
    return StringCountOf(state_->processors.Row(index));
}

const char* ProcessorInfo::DumpStringSession(std::size_t index, std::size_t stringIndex) const noexcept {
    return StringOf(state_->processors.Row(index), stringIndex);
}

bool ProcessorInfo::HasError(std::size_t) const noexcept {
    return false;
}

const char* ProcessorInfo::GetErrorMessage(std::size_t) const noexcept {
    return nullptr;
}

}  // namespace SMBIOS::Parsers
