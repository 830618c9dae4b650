#include "smbios-inspect/departures/join.h"

// Memory, its addresses and its errors.
namespace SMBIOS::Inspect::Departures {

using enum Manager::SmbiosVersionIndex;
using Structures::LengthAbove;
using Structures::LengthExactly;

namespace {

// Type 16

/// The library's kilobytes, or bytes of the extended capacity, against the standard's bytes.
bool CapacityAgrees(const Comparison& comparison) {
    const auto* capacity = std::get_if<std::uint64_t>(&comparison.library.value);
    if (!comparison.HasStandardValue() || capacity == nullptr) {
        return AgreeByKind(comparison);
    }
    const bool isInBytes = comparison.Raw() == 0;
    return comparison.StandardValue()->plain.Number() == (isInBytes ? *capacity : *capacity * 1024);
}

constexpr Join kMemoryArray[] = {
    {"maximumCapacity", "maximumCapacity", {CapacityAgrees}, {{ReasonId::arrayCapacity, Always}}},
};

constexpr Refusal kMemoryArrayRefusals[] = {
    {ReasonId::arrayLength, LengthAbove(0x17)},
};

// Type 17

bool IsSizeInKilobytes(const Comparison& comparison) {
    return comparison.Raw() >= 0x8000 && comparison.Raw() != 0xFFFF;
}

bool IsSizeElsewhere(const Comparison& comparison) {
    return comparison.Raw() == 0x7FFF || comparison.Raw() == 0xFFFF;
}

/// Of a code that is read as flags no flag means what the code does.
bool TechnologyFlagsAgree(const Comparison& comparison) {
    const auto* flags = std::get_if<std::uint64_t>(&comparison.library.value);
    return flags == nullptr || (comparison.HasStandardValue() && *flags == 0);
}

constexpr Cause kIdentifier = {ReasonId::deviceIdentifiers};

constexpr Join kMemoryDevice[] = {
    {"speed", "speed", ByKind(), {{ReasonId::deviceSpeed, Is<0xFFFF>}}},
    {"rank", "attributes", ByKind(), {{ReasonId::deviceRank}}},
    {"configuredSpeed", "configuredMemorySpeed", ByKind(), {{ReasonId::deviceConfiguredSpeed, Is<0xFFFF>}}},
    {"memoryTechnologyFlags", "memoryTechnology", {TechnologyFlagsAgree}, {{ReasonId::deviceTechnology}}},
    {"operatingModeCapability", "memoryOperatingModeCapability"},
    {"operatingModeCapabilityFlags", "memoryOperatingModeCapability"},
    {"moduleProductId", "moduleProductId", ByKind(), {kIdentifier}},
    {"moduleManufacturerId", "moduleManufacturerId", ByKind(), {kIdentifier}},
    {"memorySubsystemControllerManufacturerId",
     "memorySubsystemControllerManufacturerId",
     ByKind(),
     {kIdentifier}},
    {"memorySubsystemControllerProductId", "memorySubsystemControllerProductId", ByKind(), {kIdentifier}},
    {"rcdManufacturerId", "rcdManufacturerId", ByKind(), {kIdentifier}},
    {"pmic0ManufacturerId", "pmic0ManufacturerId", ByKind(), {kIdentifier}},
    {"size",
     "size",
     ByKind(),
     {{ReasonId::deviceSizeInKilobytes, IsSizeInKilobytes}, {ReasonId::deviceExtendedSize, IsSizeElsewhere}}},
};

constexpr Unpaired kMemoryDeviceUnpaired[] = {
    {"positionInRow", "never in the table: WMI knows it"},
};

constexpr Refusal kMemoryDeviceRefusals[] = {
    {ReasonId::deviceAcceptance},
};

// Types 18 and 33

constexpr Cause kErrorAddress = {ReasonId::errorAddress};

constexpr Join kMemoryError32[] = {
    {"memoryArrayErrorAddress", "memoryArrayErrorAddress", ByKind(), {kErrorAddress}},
    {"deviceErrorAddress", "deviceErrorAddress", ByKind(), {kErrorAddress}},
    {"errorResolution", "errorResolution", ByKind(), {kErrorAddress}},
};

constexpr Refusal kMemoryError32Refusals[] = {
    {ReasonId::errorLength, LengthAbove(0x17)},
};

constexpr Join kMemoryError64[] = {
    {"vendorSyndrome", "vendorSyndrome", ByKind(), {{ReasonId::errorSyndrome}}},
};

// Types 19 and 20

constexpr std::uint64_t kIsExtended = 0xFFFFFFFF;

/// The first or the last byte of the library's kilobyte, or the byte of the extended address.
template <std::uint64_t ByteOfKilobyte>
bool AddressAgrees(const Comparison& comparison) {
    const auto address = NumberIn(TextOf(comparison.library.value));
    if (!comparison.HasStandardValue() || !address) {
        return AgreeByKind(comparison);
    }
    const bool isInBytes = comparison.Raw() == kIsExtended;
    return comparison.StandardValue()->plain.Number() ==
           (isInBytes ? *address : *address * 1024 + ByteOfKilobyte);
}

bool OneIsExtended(const Comparison& comparison) {
    const Structures::FormattedArea area = comparison.Area();
    return (area.Dword(0x04) == kIsExtended) != (area.Dword(0x08) == kIsExtended);
}

/// The extended addresses are read as zeros.
template <std::size_t EndOfAddresses>
bool LacksExtendedAddresses(const Comparison& comparison) {
    return comparison.HasLibraryValue() && comparison.Area().Size() < EndOfAddresses;
}

template <std::size_t EndOfAddresses>
constexpr Join kMappedAddress[] = {
    {"startingAddress",
     "startingAddress",
     {AddressAgrees<0>},
     {{ReasonId::missingBytes, LacksExtendedAddresses<EndOfAddresses>},
      {ReasonId::mappedEnd, OneIsExtended}}},
    {"endingAddress",
     "endingAddress",
     {AddressAgrees<0x3FF>},
     {{ReasonId::missingBytes, LacksExtendedAddresses<EndOfAddresses>},
      {ReasonId::mappedEnd, OneIsExtended}}},
};

constexpr Structures::Versions kWithoutExtendedAddresses = {v2_1_0, v2_6_1};

constexpr Refusal kArrayAddressRefusals[] = {
    {ReasonId::mappedAcceptance, LengthExactly(0x1F), kWithoutExtendedAddresses},
};
constexpr Refusal kDeviceAddressRefusals[] = {
    {ReasonId::mappedAcceptance, LengthExactly(0x23), kWithoutExtendedAddresses},
};

}  // namespace

constexpr TypeJoins kMemoryArrayJoins = {.type = 16, .joins = kMemoryArray, .refusals = kMemoryArrayRefusals};
constexpr TypeJoins kMemoryDeviceJoins = {
    .type = 17, .joins = kMemoryDevice, .unpaired = kMemoryDeviceUnpaired, .refusals = kMemoryDeviceRefusals};
constexpr TypeJoins kMemoryError32Joins = {
    .type = 18, .joins = kMemoryError32, .refusals = kMemoryError32Refusals};
constexpr TypeJoins kMemoryError64Joins = {.type = 33, .joins = kMemoryError64};
constexpr TypeJoins kArrayAddressJoins = {
    .type = 19, .joins = kMappedAddress<0x1F>, .refusals = kArrayAddressRefusals};
constexpr TypeJoins kDeviceAddressJoins = {
    .type = 20, .joins = kMappedAddress<0x23>, .refusals = kDeviceAddressRefusals};

}  // namespace SMBIOS::Inspect::Departures
