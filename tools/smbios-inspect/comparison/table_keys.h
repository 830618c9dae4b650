#pragma once

#include <vector>

#include "smbios-inspect/comparison/compared_table.h"
#include "smbios-inspect/comparison/key.h"

namespace SMBIOS::Inspect::Comparing {

/// By what a structure finds its partner. None depends on the numbers of handles, or on the order of the
/// structures.
struct Keys {
    Key name = 0;     ///< type and name
    Key content = 0;  ///< and what it says, but for its handles
    Key context = 0;  ///< and the names of what its handles lead to, and of what has a handle of it
};

/// The keys of a table's structures, in their order.
[[nodiscard]] std::vector<Keys> KeysOf(const ComparedTable& table);

/// The context of a structure, and those of what its handles lead to.
[[nodiscard]] Key PlacementOf(const ComparedTable& table, const std::vector<Keys>& keys, Index index);

}  // namespace SMBIOS::Inspect::Comparing
