#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "common/text_table.h"

namespace SMBIOS::Inspect::Standard {

/// What the codes of a field mean, the names of its bits, or the words for some of its numbers; the codes
/// ascend.
using WordList = std::span<const Common::TextRow<std::uint64_t>>;

/// Such a list; it reads like the one in the standard, one row a line, and is checked when it is compiled.
template <std::size_t Count>
[[nodiscard]] consteval Common::TextTable<std::uint64_t, Count> WordsOf(
    const Common::TextRow<std::uint64_t> (&rows)[Count]) {
    return Common::TextTable<std::uint64_t, Count>(rows);
}

}  // namespace SMBIOS::Inspect::Standard
