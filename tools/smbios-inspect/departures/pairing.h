#pragma once

#include <span>
#include <string_view>
#include <vector>

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

    [[nodiscard]] bool IsKnown() const noexcept { return standard.row != nullptr || isUnpaired; }
};

/// The pair of a record's field: by the joins of the structure type, otherwise by its name, which may end
/// with what the library adds to it: "Name", "Value" or "Flags". A text that is a code for the standard is
/// the word of that code.
[[nodiscard]] Pair PairOf(std::uint8_t type, const LibraryField& field) noexcept;

/// The pairs of all fields of a record, each found once.
class Pairings {
public:
    /// `fields` are those of any record of the type.
    [[nodiscard]] const std::vector<Pair>& Of(std::uint8_t type, std::span<const LibraryField> fields);

private:
    std::vector<Pair> pairs_[256];
};

}  // namespace SMBIOS::Inspect::Departures
