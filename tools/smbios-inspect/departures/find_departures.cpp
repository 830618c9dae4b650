#include "smbios-inspect/departures/find_departures.h"

#include <map>

#include "manager/structure_factory.h"
#include "smbios-inspect/departures/table_comparison.h"

namespace SMBIOS::Inspect::Departures {

using Manager::DecodedTable;
using Manager::FiledStructures;
using Manager::Types::StructureTypes;
using Structures::StructureFactory;

namespace {

/// Goes through the decoders of a table: those of each key in table order.
class DecoderCursor {
public:
    explicit DecoderCursor(const FiledStructures& structures) {
        for (auto first = structures.begin(); first != structures.end();) {
            const auto last = structures.upper_bound(first->first);
            ranges_.emplace(first->first, Range{first, last});
            first = last;
        }
    }

    /// The next decoder of a key; null when there is none.
    [[nodiscard]] const Structures::BaseStructure* Next(StructureTypes key) {
        const auto range = ranges_.find(key);
        if (range == ranges_.end() || range->second.next == range->second.end) {
            return nullptr;
        }
        return (range->second.next++)->second.get();
    }

private:
    struct Range {
        FiledStructures::const_iterator next;
        FiledStructures::const_iterator end;
    };

    std::map<StructureTypes, Range> ranges_;
};

}  // namespace

void FindDepartures(std::span<const std::uint8_t> rawTable,
                    const DecodedTable& table,
                    DepartureVisitor& visitor) {
    Standard::TableWalk walk(rawTable);
    TableComparison comparison(walk.Version(), table.version.index);
    DecoderCursor decoders(table.structures);
    while (const auto structure = walk.Next()) {
        const StructureTypes key = StructureFactory::KeyOf(StructureTypes{structure->Type()});
        comparison.Compare(&*structure, key, decoders.Next(key), visitor);
    }
    for (const auto& [key, each] : table.structures) {
        if (const Structures::BaseStructure* decoder = decoders.Next(key)) {
            comparison.Compare(nullptr, key, decoder, visitor);
        }
    }
}

}  // namespace SMBIOS::Inspect::Departures
