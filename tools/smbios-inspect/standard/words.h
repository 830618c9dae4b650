#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "common/text_table.h"

namespace SMBIOS::Inspect::Standard {

/// A list of words as it is written down: it reads like the one in the standard, one row a line, and is
/// checked when it is compiled.
template <std::size_t Count>
using WordTable = Common::TextTable<std::uint64_t, Count>;

template <std::size_t Count>
[[nodiscard]] consteval WordTable<Count> WordsOf(const Common::TextRow<std::uint64_t> (&rows)[Count]) {
    return WordTable<Count>(rows);
}

/// What the codes of a field mean, the names of its bits, or the words for some of its numbers. A view of a
/// table, which lives as long as the program.
class WordList {
public:
    constexpr WordList() noexcept = default;

    template <std::size_t Count>
    constexpr WordList(const WordTable<Count>& table) noexcept : rows_(table.Rows()) {}

    /// No value when there are no words for the number.
    [[nodiscard]] constexpr std::optional<std::string_view> Find(std::uint64_t number) const {
        return Common::FindText(rows_, number);
    }

    [[nodiscard]] constexpr auto begin() const noexcept { return rows_.begin(); }
    [[nodiscard]] constexpr auto end() const noexcept { return rows_.end(); }

private:
    std::span<const Common::TextRow<std::uint64_t>> rows_;
};

}  // namespace SMBIOS::Inspect::Standard
