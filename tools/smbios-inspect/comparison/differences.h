#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "smbios-inspect/comparison/comparison.h"
#include "smbios-inspect/comparison/field_changes.h"

// What differs between two tables, one structure after the other; nothing of it is kept.
namespace SMBIOS::Inspect::Comparing {

/// How many structures of two tables are what.
struct Counts {
    std::size_t added = 0;
    std::size_t removed = 0;
    std::size_t changed = 0;
    std::size_t same = 0;
};

/// The structures that are in the new table only, in its order.
[[nodiscard]] std::vector<Index> AddedTo(const Comparison& comparison);

/// The structures that are in the old table only, in its order.
[[nodiscard]] std::vector<Index> RemovedFrom(const Comparison& comparison);

using ChangeVisitor = std::function<void(Index before, Index after, const std::vector<FieldChange>& changes)>;

/// Hands the pairs that differ to `visit`, in the order of the old table, and counts everything.
Counts VisitChanges(const Comparison& comparison, const ChangeVisitor& visit);

/// Whether the tables differ at all, when they have these counts.
[[nodiscard]] bool HasDifference(const Comparison& comparison, const Counts& counts) noexcept;

}  // namespace SMBIOS::Inspect::Comparing
