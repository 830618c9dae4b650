#pragma once

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "smbios-inspect/picture/machine.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Picture {

/// Collects memory devices, which belong to arrays that may stand before them or behind.
class MemoryCollector {
public:
    explicit MemoryCollector(Machine& machine) noexcept : machine_(machine) {}

    void AddArray(const Standard::Structure& structure);
    void AddDevice(const Standard::Structure& structure);

    /// To be called behind the last structure: gives each array its devices and sums up.
    void Finish();

private:
    void TellDevicesApart();
    void CompareSizes();
    [[nodiscard]] MemoryArray& ArrayOf(std::uint16_t handle, MemoryArray& strays);

    Machine& machine_;
    std::unordered_set<std::uint16_t> otherArrays_;  // those of another use than the system's own memory
    std::unordered_map<std::uint16_t, std::size_t> arrayPlaces_;
    std::unordered_map<std::uint16_t, MemoryTotals> totals_;  // by the array's handle
    std::vector<std::pair<std::uint16_t, MemoryDevice>> devices_;
    std::uint64_t largest_ = 0;  // of the modules
};

}  // namespace SMBIOS::Inspect::Picture
