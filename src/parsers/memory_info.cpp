#include "smbios/memory_info.h"

#include "manager/decoded_records.h"
#include "manager/smbios_manager.h"
#include "parsers/row_values.h"
#include "parsers/wmi_completion.h"
#include "structures/type_17.h"

namespace SMBIOS::Parsers {

using Manager::SmbiosManager;
using Structures::Type_17;
using Structures::Type17::Types::Type17Struct;

namespace {

constexpr WmiProperty<Type17Struct> kMemoryProperties[] = {
    {"DataWidth", &Type17Struct::dataWidth},
    {"TotalWidth", &Type17Struct::totalWidth},
    {"FormFactor", &Type17Struct::formFactor},
    {"DeviceLocator", &Type17Struct::deviceLocator},
    {"TypeDetail", &Type17Struct::typeDetail},
    {"Speed", &Type17Struct::speed},
    {"Manufacturer", &Type17Struct::manufacturer},
    {"SerialNumber", &Type17Struct::serialNumber},
    {"Tag", &Type17Struct::assetTag},
    {"PartNumber", &Type17Struct::partNumber},
    {"Attributes", &Type17Struct::rank},
    // The bank locator stays the firmware's own: callers rely on it.
    {"BankLabel", &Type17Struct::bankLocator, Completion::askedNotStored},
    {"PositionInRow", &Type17Struct::positionInRow},
    {"Capacity", &Type17Struct::size},
    {"SMBIOSMemoryType", &Type17Struct::memoryType},
};

constexpr WmiSource<Type17Struct> kPhysicalMemory = {
    .className = "Win32_PhysicalMemory",
    .keyProperty = "SerialNumber",
    .keyField = &Type17Struct::serialNumber,
    .properties = kMemoryProperties,
};

}  // namespace

struct MemoryInfo::State {
    CompletedRecords<Type17Struct> devices{kPhysicalMemory};
};

MemoryInfo::MemoryInfo() : state_(new State) {}

MemoryInfo::~MemoryInfo() {
    delete state_;
}

void MemoryInfo::RetrieveInfo() {
    SmbiosManager& manager = *SmbiosManager::GetInstance();
    manager.UpdateBiosInfo();
    state_->devices.ClearRows();
    state_->devices.Rebuild(Manager::DecodedRecords<Type_17>(manager));
}

std::size_t MemoryInfo::GetMemoryDeviceCount() const noexcept {
    return state_->devices.Count();
}

std::uint8_t MemoryInfo::GetDeviceSet(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::deviceSet);
}

std::uint16_t MemoryInfo::GetDataWidth(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::dataWidth);
}

std::uint16_t MemoryInfo::GetTotalWidth(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::totalWidth);
}

std::uint8_t MemoryInfo::GetMemoryType(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::memoryType);
}

const char* MemoryInfo::GetStringifiedMemoryType(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::memoryTypeName);
}

std::uint16_t MemoryInfo::GetPhysicalMemoryArrayHandle(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::physicalMemoryArrayHandle);
}

std::uint16_t MemoryInfo::GetMemoryErrorInformationHandle(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::memoryErrorInformationHandle);
}

std::uint8_t MemoryInfo::GetFormFactor(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::formFactor);
}

const char* MemoryInfo::GetStringifiedFormFactor(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::formFactorName);
}

const char* MemoryInfo::GetDeviceLocator(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::deviceLocator);
}

std::uint16_t MemoryInfo::GetTypeDetail(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::typeDetail);
}

MEMORY_TYPE_DETAILS MemoryInfo::GetBitsetTypeDetail(std::size_t index) const {
    MEMORY_TYPE_DETAILS details;
    const Type17Struct* const row = state_->devices.Row(index);
    if (row == nullptr || !row->typeDetailFlags) {
        return details;
    }
    const Common::Dynamic_BitSet& flags = *row->typeDetailFlags;
    details.typeDetailWord = row->typeDetail.value_or(0xFFFF);
    details.fastPaged = flags.Test(3);
    details.staticColumn = flags.Test(4);
    details.pseudoStatic = flags.Test(5);
    details.rambus = flags.Test(6);
    details.synchronous = flags.Test(7);
    details.cmos = flags.Test(8);
    details.edo = flags.Test(9);
    details.windowDram = flags.Test(10);
    details.cacheDram = flags.Test(11);
    details.nonVolatile = flags.Test(12);
    details.registered = flags.Test(13);
    details.unbuffered = flags.Test(14);
    return details;
}

std::uint32_t MemoryInfo::GetSpeed(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::speed);
}

const char* MemoryInfo::GetManufacturer(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::manufacturer);
}

const char* MemoryInfo::GetSerialNumber(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::serialNumber);
}

const char* MemoryInfo::GetAssetTag(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::assetTag);
}

const char* MemoryInfo::GetPartNumber(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::partNumber);
}

std::uint8_t MemoryInfo::GetRank(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::rank);
}

std::uint32_t MemoryInfo::GetConfiguredSpeed(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::configuredSpeed);
}

std::uint16_t MemoryInfo::GetMinVoltageInmV(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::minimumVoltage);
}

std::uint16_t MemoryInfo::GetMaxVoltageInmV(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::maximumVoltage);
}

std::uint16_t MemoryInfo::GetConfiguredVoltageInmV(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::configuredVoltage);
}

std::uint8_t MemoryInfo::GetMemoryTechnology(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::memoryTechnology);
}

const char* MemoryInfo::GetStringifiedMemoryTechnology(std::size_t index) const {
    return LowestFlagOf(state_->devices.Row(index), &Type17Struct::memoryTechnologyFlags);
}

std::uint16_t MemoryInfo::GetMemoryOperatingModeCapability(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::operatingModeCapability);
}

const char* MemoryInfo::GetStringifiedMemoryOperatingModeCapability(std::size_t index) const {
    return LowestFlagOf(state_->devices.Row(index), &Type17Struct::operatingModeCapabilityFlags);
}

const char* MemoryInfo::GetFirmwareVersion(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::firmwareVersion);
}

std::uint64_t MemoryInfo::GetCacheSize(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::cacheSize);
}

std::uint64_t MemoryInfo::GetLogicalSize(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::logicalSize);
}

std::uint64_t MemoryInfo::GetVolatileSize(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::volatileSize);
}

std::uint64_t MemoryInfo::GetNonVolatileSize(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::nonVolatileSize);
}

std::uint16_t MemoryInfo::GetModuleProductId(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::moduleProductId);
}

std::uint16_t MemoryInfo::GetModuleManufacturerId(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::moduleManufacturerId);
}

std::uint16_t MemoryInfo::GetMemorySubsystemControllerManufacturerId(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::memorySubsystemControllerManufacturerId);
}

std::uint16_t MemoryInfo::GetMemorySubsystemControllerProductId(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::memorySubsystemControllerProductId);
}

std::uint16_t MemoryInfo::GetRCDManufacturerId(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::rcdManufacturerId);
}

std::uint16_t MemoryInfo::GetRCDRevisionNumber(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::rcdRevisionNumber);
}

std::uint16_t MemoryInfo::GetPMIC0ManufacturerId(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::pmic0ManufacturerId);
}

std::uint16_t MemoryInfo::GetPMIC0RevisionNumber(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::pmic0RevisionNumber);
}

const char* MemoryInfo::GetBankLocator(std::size_t index) const noexcept {
    return TextOf(state_->devices.Row(index), &Type17Struct::bankLocator);
}

std::uint8_t MemoryInfo::GetPositionInRow(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::positionInRow);
}

std::uint64_t MemoryInfo::GetSizeInKB(std::size_t index) const noexcept {
    return NumberOf(state_->devices.Row(index), &Type17Struct::size);
}

std::uint8_t* MemoryInfo::DumpRawData(std::size_t index, std::size_t& size) const noexcept {
    return RawDataOf(state_->devices.Row(index), size);
}

std::size_t MemoryInfo::GetStringSessionSize(std::size_t index) const noexcept {
    return StringCountOf(state_->devices.Row(index));
}

const char* MemoryInfo::DumpStringSession(std::size_t index, std::size_t stringIndex) const noexcept {
    return StringOf(state_->devices.Row(index), stringIndex);
}

bool MemoryInfo::HasError(std::size_t) const noexcept {
    return false;
}

const char* MemoryInfo::GetErrorMessage(std::size_t) const noexcept {
    return nullptr;
}

}  // namespace SMBIOS::Parsers
