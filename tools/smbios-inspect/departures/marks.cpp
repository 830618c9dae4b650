#include "smbios-inspect/departures/marks.h"

namespace SMBIOS::Inspect::Departures {

void Marks::Visit(const Departure& departure) {
    if (departure.decoder != nullptr) {
        labels_[departure.decoder].emplace_back(departure.label == nullptr ? "" : departure.label);
    }
}

std::span<const std::string_view> Marks::Of(const Structures::BaseStructure& decoder) const {
    const auto labels = labels_.find(&decoder);
    return labels == labels_.end() ? std::span<const std::string_view>() : labels->second;
}

}  // namespace SMBIOS::Inspect::Departures
