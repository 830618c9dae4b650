#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string_view>
#include <vector>

#include "manager/decoded_table.h"
#include "smbios-inspect/departures/table_comparison.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Departures {

/// Finds the lines in which people find departures, for one structure after the other.
class MarkFinder {
public:
    /// `rawTable` begins with the 8-byte header, and stays while the finder does. Throws when nothing follows
    /// the header, and std::bad_alloc.
    explicit MarkFinder(std::span<const std::uint8_t> rawTable);

    /// Labels of the lines of the next structure under its key, until the next call; a departing value that
    /// has no line of its own counts too, as often as it occurs.
    [[nodiscard]] std::span<const std::string_view> MarksOf(const Manager::FiledStructure& structure);

private:
    /// The structures under a key, as the standard cuts them out of the table.
    struct Queue {
        std::vector<Standard::Structure> structures;
        std::size_t next = 0;
    };

    TableComparison comparison_;
    std::map<Manager::Types::StructureTypes, Queue> queues_;
    std::vector<std::string_view> labels_;
};

}  // namespace SMBIOS::Inspect::Departures
