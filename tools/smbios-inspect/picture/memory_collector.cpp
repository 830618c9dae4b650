#include "smbios-inspect/picture/memory_collector.h"

#include <algorithm>
#include <limits>
#include <string>

#include "smbios-inspect/picture/fields.h"
#include "smbios-inspect/picture/things.h"
#include "smbios-inspect/picture/words.h"

namespace SMBIOS::Inspect::Picture {

namespace {

/// No sum of sizes that firmware claims becomes small.
std::uint64_t SumOf(std::uint64_t one, std::uint64_t other) noexcept {
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
    return one > kMost - other ? kMost : one + other;
}

void Add(MemoryTotals& totals, const MemoryTotals& more) noexcept {
    totals.slots += more.slots;
    totals.filled += more.filled;
    totals.bytes = SumOf(totals.bytes, more.bytes);
}

}  // namespace

void MemoryCollector::AddArray(const Standard::Structure& structure) {
    constexpr std::uint64_t kSystemMemory = 3;
    const Fields fields = FieldsOf(structure).own;
    if (fields.Number("use").value_or(kSystemMemory) != kSystemMemory) {
        otherArrays_.insert(structure.Handle());
    }
    MemoryArray array = MemoryArrayOf(fields);
    if (machine_.arrays.HasRoom()) {
        array.tooltip = TooltipOf(structure);
        arrayPlaces_.try_emplace(structure.Handle(), machine_.arrays.items.size());
    }
    machine_.arrays.Add(std::move(array));
}

void MemoryCollector::AddDevice(const Standard::Structure& structure) {
    const Fields fields = FieldsOf(structure).own;
    const auto array = static_cast<std::uint16_t>(fields.Number("physicalMemoryArrayHandle").value_or(0));
    MemoryDevice device = MemoryDeviceOf(fields);
    Add(totals_[array],
        {.slots = 1, .filled = device.isFilled ? std::size_t{1} : std::size_t{0}, .bytes = device.bytes});
    largest_ = std::max(largest_, device.bytes);
    if (devices_.size() < kMostOfAKind) {
        device.tooltip = TooltipOf(structure);
        devices_.emplace_back(array, std::move(device));
    }
}

/// Where there is one array alone, every device is its own: some firmware gives the array another handle than
/// its devices know.
MemoryArray& MemoryCollector::ArrayOf(std::uint16_t handle, MemoryArray& strays) {
    if (machine_.arrays.Count() == 1) {
        return machine_.arrays.items.front();
    }
    const auto place = arrayPlaces_.find(handle);
    return place == arrayPlaces_.end() ? strays : machine_.arrays.items[place->second];
}

/// The bank stands behind a locator that several devices have.
void MemoryCollector::TellDevicesApart() {
    std::unordered_map<std::string, std::size_t> counts;
    for (const auto& [handle, device] : devices_) {
        ++counts[device.locator];
    }
    for (auto& [handle, device] : devices_) {
        if (counts[device.locator] > 1 && device.bank != device.locator) {
            device.locator = Dotted({device.locator, device.bank});
        }
    }
}

void MemoryCollector::CompareSizes() {
    for (auto& [handle, device] : devices_) {
        if (device.bytes == largest_) {
            device.step = MemoryStep::large;
        } else {
            device.step = device.bytes < largest_ / 2 ? MemoryStep::small : MemoryStep::medium;
        }
    }
}

void MemoryCollector::Finish() {
    TellDevicesApart();
    CompareSizes();
    MemoryArray strays{.name = "Memory devices of no array that is drawn",
                       .tooltip = "Memory devices that refer to no array, or to one that is not drawn."};
    for (const auto& [handle, totals] : totals_) {
        Add(ArrayOf(handle, strays).totals, totals);
        if (!otherArrays_.contains(handle)) {
            Add(machine_.systemMemory, totals);
        }
    }
    for (auto& [handle, device] : devices_) {
        ArrayOf(handle, strays).devices.push_back(std::move(device));
    }
    if (strays.totals.slots != 0) {
        machine_.arrays.items.push_back(std::move(strays));
    }
}

}  // namespace SMBIOS::Inspect::Picture
