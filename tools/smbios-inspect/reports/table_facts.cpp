#include "smbios-inspect/reports/table_facts.h"

#include "smbios-inspect/records/decode_each.h"
#include "smbios-inspect/reports/table_end.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect {

namespace {

/// The structures of which the library has no values: a sound one may be of a version that it does not
/// decode.
void CountRefused(const FiledStructure& structure, TableFacts& facts) {
    if (!ErrorOf(structure).empty()) {
        StructureCount& count = IsDamaged(structure) ? facts.malformed : facts.undecoded;
        ++count.count;
        count.types.insert(TypeOf(structure));
    }
}

}  // namespace

TableFacts TableFactsOf(std::span<const std::uint8_t> rawTable) {
    Standard::TableWalk walk(rawTable);
    TableFacts facts;
    facts.version = Standard::VersionText(walk.Version());
    facts.mayBeCutShort = MayBeCutShort(rawTable);
    while (walk.Next()) {
        ++facts.structures;
    }
    const auto areAll = [](Manager::Types::StructureTypes) { return true; };
    DecodeEach(rawTable, areAll, [&](const FiledStructure& structure) { CountRefused(structure, facts); });
    return facts;
}

}  // namespace SMBIOS::Inspect
