#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "smbios-inspect/departures/departure.h"

namespace SMBIOS::Inspect::Departures {

/// Collects the lines in which people find departures, for each structure that the library decoded.
class Marks final : public DepartureVisitor {
public:
    void Visit(const Departure& departure) override;

    /// Labels of the structure's lines; a departing value that has no line of its own counts too, as often as
    /// it occurs.
    [[nodiscard]] std::span<const std::string_view> Of(const Structures::BaseStructure& decoder) const;

private:
    std::unordered_map<const Structures::BaseStructure*, std::vector<std::string_view>> labels_;
};

}  // namespace SMBIOS::Inspect::Departures
