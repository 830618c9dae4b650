#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "smbios-inspect/departures/reasons.h"
#include "smbios-inspect/departures/rules.h"
#include "smbios-inspect/records/record_of.h"
#include "structures/parse_rules.h"

// How the fields of a record are joined with those of the standard.
namespace SMBIOS::Inspect::Departures {

/// Why two values depart. With a condition it comes before what holds for every type, without one behind.
struct Cause {
    ReasonId reason = ReasonId::unexplained;
    bool (*applies)(const Comparison&) = nullptr;
};

/// A field of a record and the standard's. Needed only where the names do not tell which that is, or where
/// values may depart.
struct Join {
    std::string_view field;
    std::string_view standard;
    Rule rule = ByKind();
    Cause causes[3] = {};
};

/// A field of a record that the standard does not have.
struct Unpaired {
    std::string_view field;
    std::string_view why;
};

/// Structures that the library refuses for a reason of their own.
struct Refusal {
    ReasonId reason;
    Structures::Lengths lengths = Structures::kAnyLength;
    Structures::Versions versions = Structures::kAnyVersion;
};

struct TypeJoins {
    std::uint8_t type;
    std::span<const Join> joins = {};
    std::span<const Unpaired> unpaired = {};
    std::span<const Refusal> refusals = {};
};

/// For a cause that needs no condition, but comes before the others.
[[nodiscard]] inline bool Always(const Comparison&) noexcept {
    return true;
}

/// Whether the structure ends before this offset.
template <std::size_t Offset>
[[nodiscard]] bool EndsBefore(const Comparison& comparison) noexcept {
    return comparison.Area().Size() < Offset;
}

/// Whether the bytes of the standard's field are this number.
template <std::uint64_t Number>
[[nodiscard]] bool Is(const Comparison& comparison) noexcept {
    return comparison.Raw() == Number;
}

/// The record of a decoder.
template <class Decoder>
[[nodiscard]] const auto& RecordIn(const Comparison& comparison) {
    return RecordOf<Decoder>(comparison.decoder);
}

// joins_system.cpp
extern const TypeJoins kFirmwareJoins;
extern const TypeJoins kSystemJoins;
extern const TypeJoins kBoardJoins;
extern const TypeJoins kChassisJoins;
extern const TypeJoins kOemStringJoins;
extern const TypeJoins kBootJoins;

// joins_processor.cpp
extern const TypeJoins kProcessorJoins;
extern const TypeJoins kCacheJoins;

// joins_board.cpp
extern const TypeJoins kPortJoins;
extern const TypeJoins kSlotJoins;
extern const TypeJoins kPointingDeviceJoins;
extern const TypeJoins kOnboardDeviceJoins;
extern const TypeJoins kTpmJoins;

// joins_memory.cpp
extern const TypeJoins kMemoryArrayJoins;
extern const TypeJoins kMemoryDeviceJoins;
extern const TypeJoins kMemoryError32Joins;
extern const TypeJoins kMemoryError64Joins;
extern const TypeJoins kArrayAddressJoins;
extern const TypeJoins kDeviceAddressJoins;

// joins_power.cpp
extern const TypeJoins kBatteryJoins;
extern const TypeJoins kVoltageProbeJoins;
extern const TypeJoins kCoolingDeviceJoins;
extern const TypeJoins kTemperatureProbeJoins;
extern const TypeJoins kCurrentProbeJoins;
extern const TypeJoins kPowerSupplyJoins;

/// The joins of a type; null when the library does not decode its fields.
[[nodiscard]] const TypeJoins* JoinsOf(std::uint8_t type) noexcept;

}  // namespace SMBIOS::Inspect::Departures
