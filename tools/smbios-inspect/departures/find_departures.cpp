#include "smbios-inspect/departures/find_departures.h"

#include <algorithm>
#include <map>
#include <string>

#include "manager/structure_factory.h"
#include "platform/raw_table_header.h"
#include "smbios-inspect/departures/compare_structure.h"

namespace SMBIOS::Inspect::Departures {

using Manager::DecodedTable;
using Manager::FiledStructures;
using Manager::Types::StructureTypes;
using Standard::Structure;
using Standard::TableVersion;
using Standard::TableWalk;

namespace {

StructureTypes KeyOf(std::uint8_t type) noexcept {
    return Structures::StructureFactory::KeyOf(StructureTypes{type});
}

bool IsListed(TableVersion version) noexcept {
    return Manager::FindVersionIndex(version.major, version.minor, version.revision).has_value();
}

/// Whether the library cut the same structure out of the table: in what it keeps of the bytes at most the
/// voltage of a processor is changed.
bool IsSameStructure(const Structure& structure, const RecordFrame& frame) {
    constexpr std::size_t kVoltage = 0x11;
    if (frame.rawBytes.size() != structure.bytes.size()) {
        return false;
    }
    for (std::size_t i = 0; i < structure.bytes.size(); ++i) {
        const bool mayDiffer = structure.Type() == 4 && i == kVoltage;
        if (frame.rawBytes[i] != structure.bytes[i] && !mayDiffer) {
            return false;
        }
    }
    return true;
}

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

/// The library does not have the structure.
void TellMissing(const Structure& structure, DepartureVisitor& visitor) {
    const Standard::Value value = Standard::Text("a structure");
    visitor.Visit({structure,
                   "structure",
                   nullptr,
                   nullptr,
                   &value,
                   KeyOf(structure.Type()),
                   nullptr,
                   0,
                   ReasonId::cutting});
}

/// The library has a structure where the standard has none.
void TellAdditional(StructureTypes key, const Structures::BaseStructure& decoder, DepartureVisitor& visitor) {
    const RecordFrame frame = FrameOf(key, decoder);
    const Structure structure{.bytes = frame.rawBytes, .strings = {}, .version = {}};
    const std::vector<LibraryField> fields = LibraryFieldsOf(key, decoder);
    const std::string_view name = frame.error.empty() ? "rawBytes" : "error";
    const auto field =
        std::ranges::find(fields, name, [](const LibraryField& each) { return std::string_view(each.name); });
    visitor.Visit({structure,
                   field->name,
                   field->label,
                   nullptr,
                   nullptr,
                   key,
                   &decoder,
                   static_cast<std::size_t>(field - fields.begin()),
                   ReasonId::cutting});
}

}  // namespace

void FindDepartures(std::span<const std::uint8_t> rawTable,
                    const DecodedTable& table,
                    DepartureVisitor& visitor) {
    TableWalk walk(rawTable);
    const bool isListed = IsListed(walk.Version());
    DecoderCursor decoders(table.structures);
    Pairings pairings;
    while (const auto structure = walk.Next()) {
        const StructureTypes key = KeyOf(structure->Type());
        const Structures::BaseStructure* decoder = decoders.Next(key);
        if (decoder == nullptr) {
            TellMissing(*structure, visitor);
        } else if (!IsSameStructure(*structure, FrameOf(key, *decoder))) {
            TellMissing(*structure, visitor);
            TellAdditional(key, *decoder, visitor);
        } else {
            CompareStructure(*structure, {key, *decoder, table.version.index, isListed}, pairings, visitor);
        }
    }
    for (const auto& [key, each] : table.structures) {
        if (const Structures::BaseStructure* decoder = decoders.Next(key)) {
            TellAdditional(key, *decoder, visitor);
        }
    }
}

}  // namespace SMBIOS::Inspect::Departures
