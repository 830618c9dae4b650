#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/comparison/references.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Comparing {

/// The place of a structure among those of its table, and what stands for no structure.
using Index = std::uint32_t;
inline constexpr Index kNoStructure = 0xFFFFFFFF;

/// The parts of a structure's name as its table has them. Of a cache that belongs to a processor they are the
/// processor's, and the level tells caches of one processor from each other; 0 for anything else.
struct NameParts {
    std::array<std::string_view, 2> texts;
    std::uint8_t cacheLevel;
};

/// The structures of a raw table and the handles that they have of each other. It holds where they stand, and
/// no copy of them: the table outlives it.
class ComparedTable {
public:
    explicit ComparedTable(std::span<const std::uint8_t> rawTable);

    [[nodiscard]] Standard::TableVersion Version() const noexcept { return version_; }
    [[nodiscard]] Index Size() const noexcept { return static_cast<Index>(entries_.size()); }

    [[nodiscard]] Standard::Structure At(Index index) const;
    [[nodiscard]] std::uint8_t TypeOf(Index index) const noexcept { return entries_[index].type; }
    [[nodiscard]] std::uint16_t HandleOf(Index index) const noexcept { return entries_[index].handle; }
    [[nodiscard]] std::span<const Reference> ReferencesOf(Index index) const noexcept;

    /// The first structure that has this handle; kNoStructure when none has.
    [[nodiscard]] Index Find(std::uint16_t handle) const noexcept { return byHandle_[handle]; }

    /// Texts longer than `limit` end there.
    [[nodiscard]] NameParts NameOf(Index index, std::size_t limit = std::string_view::npos) const noexcept;

private:
    /// A text of the table begins at such an offset; at 0 there is none.
    using TextOffset = std::uint32_t;

    struct Entry {
        std::uint32_t offset;
        std::uint32_t firstReference;
        std::array<TextOffset, 2> name;
        std::uint16_t handle;
        std::uint8_t type;
        std::uint8_t cacheLevel;
    };

    void Append(const Standard::Structure& structure);
    [[nodiscard]] TextOffset OffsetOf(std::string_view text) const noexcept;
    [[nodiscard]] std::string_view TextAt(TextOffset offset, std::size_t limit) const noexcept;
    void NameCachesAfterProcessors();
    void NameCacheAfter(const Entry& processor, const Reference& reference);
    [[nodiscard]] bool IsNamedBefore(const Entry& cache, const Entry& processor, std::uint8_t level) const;

    std::span<const std::uint8_t> rawTable_;
    Standard::TableVersion version_;
    std::vector<Entry> entries_;
    std::vector<Reference> references_;
    std::vector<Index> byHandle_;
};

}  // namespace SMBIOS::Inspect::Comparing
