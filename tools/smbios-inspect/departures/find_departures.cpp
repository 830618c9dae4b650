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
    explicit DecoderCursor(const FiledStructures& structures) noexcept : structures_(structures) {}

    /// The next decoder of a key; null when there is none.
    [[nodiscard]] const Structures::BaseStructure* Next(StructureTypes key) {
        const auto run = structures_.find(key);
        std::size_t& next = next_[key];
        if (run == structures_.end() || next == run->second.size()) {
            return nullptr;
        }
        return run->second[next++].second.get();
    }

private:
    const FiledStructures& structures_;
    std::map<StructureTypes, std::size_t> next_;
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
    for (const auto& [key, run] : table.structures) {
        while (const Structures::BaseStructure* decoder = decoders.Next(key)) {
            comparison.Compare(nullptr, key, decoder, visitor);
        }
    }
}

}  // namespace SMBIOS::Inspect::Departures
