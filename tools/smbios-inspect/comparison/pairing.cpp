#include "smbios-inspect/comparison/pairing.h"

#include <optional>
#include <unordered_map>

#include "smbios-inspect/comparison/match_rules.h"

namespace SMBIOS::Inspect::Comparing {

namespace {

/// Only structures that are matched by their content are in the end matched by their type alone.
std::optional<Key> TypeKey(const ComparedTable& table, Index index) {
    const std::uint8_t type = table.TypeOf(index);
    return RuleFor(type).matchedBy == MatchedBy::content ? std::optional<Key>(type) : std::nullopt;
}

}  // namespace

Pairing::Pairing(const ComparedTable& before,
                 const std::vector<Keys>& beforeKeys,
                 const ComparedTable& after,
                 const std::vector<Keys>& afterKeys)
    : afterOf_(before.Size(), kNoStructure), beforeOf_(after.Size(), kNoStructure) {
    PairBy([&](Index index) { return std::optional(PlacementOf(before, beforeKeys, index)); },
           [&](Index index) { return std::optional(PlacementOf(after, afterKeys, index)); });
    for (Key Keys::*const key : {&Keys::context, &Keys::content, &Keys::name}) {
        PairBy([&](Index index) { return std::optional(beforeKeys[index].*key); },
               [&](Index index) { return std::optional(afterKeys[index].*key); });
    }
    PairBy([&](Index index) { return TypeKey(before, index); },
           [&](Index index) { return TypeKey(after, index); });
}

template <class BeforeKey, class AfterKey>
void Pairing::PairBy(BeforeKey beforeKey, AfterKey afterKey) {
    std::unordered_map<Key, Index> first;
    std::vector<Index> next(afterOf_.size(), kNoStructure);
    for (auto before = static_cast<Index>(afterOf_.size()); before-- != 0;) {
        const std::optional<Key> key = afterOf_[before] == kNoStructure ? beforeKey(before) : std::nullopt;
        if (key) {
            const auto place = first.try_emplace(*key, kNoStructure).first;
            next[before] = place->second;
            place->second = before;
        }
    }
    for (Index after = 0; after < beforeOf_.size() && !first.empty(); ++after) {
        const std::optional<Key> key = beforeOf_[after] == kNoStructure ? afterKey(after) : std::nullopt;
        const auto place = key ? first.find(*key) : first.end();
        if (place != first.end() && place->second != kNoStructure) {
            const Index before = place->second;
            place->second = next[before];
            afterOf_[before] = after;
            beforeOf_[after] = before;
        }
    }
}

}  // namespace SMBIOS::Inspect::Comparing
