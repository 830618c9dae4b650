#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "common/text_table.h"
#include "structures/structure_reader.h"
#include "structures/structure_record.h"

namespace SMBIOS::Structures {

/// Record of one voltage, temperature or electrical current probe, in the unit of its type: millivolts,
/// degrees Celsius or milliamperes.
struct ProbeRecord : StructureRecord {
    std::string description;
    std::string location;
    std::string status;
    std::optional<float> maximumValue;
    std::optional<float> minimumValue;
    std::optional<float> resolution;
    std::optional<float> tolerance;
    std::optional<float> accuracy;  ///< percent
    std::optional<std::uint32_t> oemDefined;
    std::optional<float> nominalValue;
};

/// What a unit of the firmware's words is worth in the unit of the record.
struct ProbeFactors {
    float value;  ///< of the maximum, the minimum and the nominal value
    float resolution;
    float tolerance;
    float accuracy;
};

/// Names of the condition of a probe or of a cooling device.
inline constexpr auto kProbeStatusNames = Common::ByteTable({
    {0x03, "OK"},
    {0x04, "Non-critical"},
    {0x05, "Critical"},
    {0x06, "Non-recoverable"},
});
static_assert(kProbeStatusNames.Rows().size() == 4);

/// Places of voltage probes and of electrical current probes.
inline constexpr auto kElectricalProbeLocationNames = Common::ByteTable({
    {0x03, "Processor"},
    {0x04, "Disk"},
    {0x05, "Peripheral Bay"},
    {0x06, "System Management Module"},
    {0x07, "Motherboard"},
    {0x08, "Memory Module"},
    {0x09, "Processor Module"},
    {0x0A, "Power Unit"},
    {0x0B, "Add-in Card"},
});
static_assert(kElectricalProbeLocationNames.Rows().size() == 9);

/// Decodes the fields of a probe whose place is named by `locations`, rows in ascending order.
void DecodeProbe(const StructureReader& in,
                 std::span<const Common::TextRow<std::uint8_t>> locations,
                 const ProbeFactors& factors,
                 ProbeRecord& record);

}  // namespace SMBIOS::Structures
