#pragma once

#include <vector>

#include "smbios-inspect/comparison/compared_table.h"
#include "smbios-inspect/comparison/table_keys.h"

namespace SMBIOS::Inspect::Comparing {

/// Which structure of one table is which of the other, by `match_rules`: those that are alike in everything
/// find each other first, then those that are alike in less; among equals the order decides.
class Pairing {
public:
    Pairing(const ComparedTable& before,
            const std::vector<Keys>& beforeKeys,
            const ComparedTable& after,
            const std::vector<Keys>& afterKeys);

    /// The partner in the other table; kNoStructure for none.
    [[nodiscard]] Index AfterOf(Index before) const noexcept { return afterOf_[before]; }
    [[nodiscard]] Index BeforeOf(Index after) const noexcept { return beforeOf_[after]; }

private:
    /// Pairs those without a partner whose keys are equal. A key function returns no value for a structure
    /// that it does not concern.
    template <class BeforeKey, class AfterKey>
    void PairBy(BeforeKey beforeKey, AfterKey afterKey);

    std::vector<Index> afterOf_;
    std::vector<Index> beforeOf_;
};

}  // namespace SMBIOS::Inspect::Comparing
