#include "smbios-inspect/comparison/comparison.h"

#include <algorithm>

namespace SMBIOS::Inspect::Comparing {

using Standard::Structure;

namespace {

std::unordered_set<Key> SharedNames(const std::vector<Keys>& keys) {
    std::unordered_set<Key> seen;
    std::unordered_set<Key> shared;
    for (const Keys& each : keys) {
        if (!seen.insert(each.name).second) {
            shared.insert(each.name);
        }
    }
    return shared;
}

}  // namespace

Side::Side(std::span<const std::uint8_t> rawTable)
    : table(rawTable), keys(KeysOf(table)), sharedNames(SharedNames(keys)) {}

Comparison::Comparison(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after)
    : before_(before), after_(after), pairing_(before_.table, before_.keys, after_.table, after_.keys) {}

bool Comparison::LeadToTheSame(std::uint16_t before, std::uint16_t after) const noexcept {
    const Index target = before_.table.Find(before);
    const Index otherTarget = after_.table.Find(after);
    if (target == kNoStructure || otherTarget == kNoStructure) {
        return target == otherTarget;
    }
    return pairing_.AfterOf(target) == otherTarget ||
           before_.keys[target].context == after_.keys[otherTarget].context;
}

bool Comparison::IsTheSame(Index before, Index after) const {
    const std::span<const Reference> references = before_.table.ReferencesOf(before);
    const std::span<const Reference> otherReferences = after_.table.ReferencesOf(after);
    const Structure structure = before_.table.At(before);
    const Structure other = after_.table.At(after);
    return structure.version == other.version && structure.defect == other.defect &&
           structure.strings == other.strings &&
           BytesWithoutHandles(structure, references) == BytesWithoutHandles(other, otherReferences) &&
           std::ranges::equal(references, otherReferences, [&](Reference own, Reference others) {
               return own.offset == others.offset && LeadToTheSame(own.handle, others.handle);
           });
}

}  // namespace SMBIOS::Inspect::Comparing
