#include "smbios-inspect/comparison/differences.h"

namespace SMBIOS::Inspect::Comparing {

std::vector<Index> AddedTo(const Comparison& comparison) {
    std::vector<Index> added;
    for (Index after = 0; after < comparison.After().table.Size(); ++after) {
        if (comparison.Pairs().BeforeOf(after) == kNoStructure) {
            added.push_back(after);
        }
    }
    return added;
}

std::vector<Index> RemovedFrom(const Comparison& comparison) {
    std::vector<Index> removed;
    for (Index before = 0; before < comparison.Before().table.Size(); ++before) {
        if (comparison.Pairs().AfterOf(before) == kNoStructure) {
            removed.push_back(before);
        }
    }
    return removed;
}

Counts VisitChanges(const Comparison& comparison, const ChangeVisitor& visit) {
    Counts counts;
    for (Index before = 0; before < comparison.Before().table.Size(); ++before) {
        const Index after = comparison.Pairs().AfterOf(before);
        if (after == kNoStructure) {
            ++counts.removed;
            continue;
        }
        const std::vector<FieldChange> changes = ChangesOf(comparison, before, after);
        if (changes.empty()) {
            ++counts.same;
        } else {
            ++counts.changed;
            visit(before, after, changes);
        }
    }
    counts.added = comparison.After().table.Size() - counts.same - counts.changed;
    return counts;
}

bool HasDifference(const Comparison& comparison, const Counts& counts) noexcept {
    return comparison.Before().table.Version() != comparison.After().table.Version() || counts.added != 0 ||
           counts.removed != 0 || counts.changed != 0;
}

}  // namespace SMBIOS::Inspect::Comparing
