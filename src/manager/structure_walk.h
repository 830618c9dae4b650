#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace SMBIOS::Manager {

/// One structure where it stands in its table. A view: valid only while the table is.
struct StructureView {
    std::uint8_t type = 0;
    std::uint32_t stringCount = 0;
    std::span<const std::uint8_t> formattedArea;  ///< header included
    std::span<const std::uint8_t> stringSet;      ///< without the two zeros behind it
};

/// One structure as decoders take it.
struct RawStructure {
    std::uint8_t type = 0;
    std::vector<std::uint8_t> formattedBytes;  ///< header included
    std::vector<std::string> strings;          ///< string number 1 first

    /// A copy of a structure in its table. Throws std::bad_alloc.
    [[nodiscard]] static RawStructure Of(const StructureView& structure);
};

/// Cuts a structure table into its structures, in table order. Neither type 127 nor type 126 is special. The
/// walk ends at the end of the table, or earlier, without an error, where a header or a formatted area would
/// extend past it or the walk would not advance. A view: valid only while the table is.
class StructureWalk {
public:
    explicit StructureWalk(std::span<const std::uint8_t> table) noexcept : rest_(table) {}

    /// The next structure; no value when the walk has ended. Takes time linear in the table over a whole
    /// walk.
    [[nodiscard]] std::optional<StructureView> Next() noexcept;

private:
    void TakeStringSet(StructureView& structure) noexcept;

    std::span<const std::uint8_t> rest_;
    bool mayHoldDoubleZero_ = true;
};

}  // namespace SMBIOS::Manager
