#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "smbios-inspect/departures/glances.h"
#include "smbios-inspect/departures/join.h"
#include "smbios-inspect/departures/library_fields.h"
#include "smbios-inspect/departures/standard_field.h"

namespace SMBIOS::Inspect::Departures {

/// Which field of the standard a field of a record is.
struct Pair {
    StandardField standard = {};
    Rule rule = ByKind();
    std::span<const Cause> causes = {};
    bool isUnpaired = false;  ///< the standard has no such field, and that is known
    Glance glance = nullptr;  ///< null when the rule alone tells

    [[nodiscard]] bool IsKnown() const noexcept { return standard.row != nullptr || isUnpaired; }
};

/// The pairs of all fields of a record, in their order.
struct RecordPairs {
    std::vector<Pair> pairs;
    bool hasStrings = false;  ///< the string set is the one of a field
};

/// The pairs of a record's fields: by the joins of the structure type, otherwise by their names, which may
/// end with what the library adds to them: "Name", "Value" or "Flags". A text that is a code for the standard
/// is the word of that code.
[[nodiscard]] RecordPairs PairsOf(std::uint8_t type, std::span<const LibraryField> fields);

/// The pairs of each type, found once.
class Pairings {
public:
    /// `fields` are those of any record of the type.
    [[nodiscard]] const RecordPairs& Of(std::uint8_t type, std::span<const LibraryField> fields);

private:
    RecordPairs pairs_[256];
};

}  // namespace SMBIOS::Inspect::Departures
