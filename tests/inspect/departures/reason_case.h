#pragma once

#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

#include "smbios-inspect/departures/reasons.h"
#include "tests/inspect/standard/field_case.h"

namespace SMBIOS::Tests {

using Inspect::Departures::ReasonId;

struct ClaimedVersion {
    std::uint8_t major;
    std::uint8_t minor;
};

/// A structure of zeros but for its header and the patches, with the strings "one", "two" and "three", in a
/// table of this version; its fields that depart, and what both sides say of one of them.
struct ReasonCase {
    ReasonId reason;
    const char* name;
    ClaimedVersion version;
    std::uint8_t type;
    std::uint8_t length;
    std::vector<Patch> patches;
    const char* fields;  ///< all that depart, with blanks between them
    const char* field;
    const char* firmware;                   ///< JSON
    const char* library;                    ///< JSON
    std::vector<std::uint8_t> behind = {};  ///< the structure, as they are
};

inline std::ostream& operator<<(std::ostream& output, const ReasonCase& tested) {
    return output << tested.name;
}

// Values as both sides print them, in JSON.
inline constexpr const char* kAccepted = R"({"value": "accepted"})";
inline constexpr const char* kMalformedJson =
    "\"Malformed or corrupted structure. Maybe a version outside the interval this lib supports [2.0.0, "
    "3.8.0]\"";

// For each reason a table that shows it, in the order of the reasons: a source a section.
[[nodiscard]] std::span<const ReasonCase> EverywhereReasonCases();
[[nodiscard]] std::span<const ReasonCase> MemoryReasonCases();
[[nodiscard]] std::span<const ReasonCase> ProcessorReasonCases();
[[nodiscard]] std::span<const ReasonCase> SystemReasonCases();
[[nodiscard]] std::span<const ReasonCase> DeviceReasonCases();

}  // namespace SMBIOS::Tests
