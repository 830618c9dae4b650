#include <algorithm>

#include "smbios-inspect/departures/join.h"

namespace SMBIOS::Inspect::Departures {

namespace {

constexpr const TypeJoins* kAllJoins[] = {
    &kFirmwareJoins,          // 0
    &kSystemJoins,            // 1
    &kBoardJoins,             // 2
    &kChassisJoins,           // 3
    &kProcessorJoins,         // 4
    &kCacheJoins,             // 7
    &kPortJoins,              // 8
    &kSlotJoins,              // 9
    &kOemStringJoins,         // 11
    &kMemoryArrayJoins,       // 16
    &kMemoryDeviceJoins,      // 17
    &kMemoryError32Joins,     // 18
    &kArrayAddressJoins,      // 19
    &kDeviceAddressJoins,     // 20
    &kPointingDeviceJoins,    // 21
    &kBatteryJoins,           // 22
    &kVoltageProbeJoins,      // 26
    &kCoolingDeviceJoins,     // 27
    &kTemperatureProbeJoins,  // 28
    &kCurrentProbeJoins,      // 29
    &kBootJoins,              // 32
    &kMemoryError64Joins,     // 33
    &kPowerSupplyJoins,       // 39
    &kOnboardDeviceJoins,     // 41
    &kTpmJoins,               // 43
};

}  // namespace

const TypeJoins* JoinsOf(std::uint8_t type) noexcept {
    const auto joins = std::ranges::find(kAllJoins, type, &TypeJoins::type);
    return joins == std::ranges::end(kAllJoins) ? nullptr : *joins;
}

}  // namespace SMBIOS::Inspect::Departures
