#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace SMBIOS::Manager {

/// One structure cut out of the table.
struct RawStructure {
    std::uint8_t type = 0;
    std::vector<std::uint8_t> formattedBytes;  ///< header included
    std::vector<std::string> strings;          ///< string number 1 first
};

/// Cuts a structure table into its structures, in table order. Neither type 127 nor type 126 is special. The
/// walk ends at the end of the table, or earlier, without an error, where a header or a formatted area would
/// extend past it or the walk would not advance. A view: valid only while the table is.
class StructureWalk {
public:
    explicit StructureWalk(std::span<const std::uint8_t> table) noexcept : rest_(table) {}

    /// The next structure; no value when the walk has ended. Takes time linear in the table over a whole
    /// walk.
    [[nodiscard]] std::optional<RawStructure> Next();

private:
    [[nodiscard]] std::vector<std::string> TakeStrings();

    std::span<const std::uint8_t> rest_;
    bool mayHoldDoubleZero_ = true;
};

}  // namespace SMBIOS::Manager
