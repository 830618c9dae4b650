#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace SMBIOS::Common {

/// One row of a value-to-text table.
template <class Code>
struct TextRow {
    Code code;
    std::string_view text;
};

/// The text of `code` among rows in ascending order of their codes; no value when there is no such row.
template <class Code>
[[nodiscard]] constexpr std::optional<std::string_view> FindText(std::span<const TextRow<Code>> rows,
                                                                 Code code) {
    // Most tables have a row for every code from their first one on.
    const std::size_t place = rows.empty() ? 0 : std::size_t{code} - rows.front().code;
    if (place < rows.size() && rows[place].code == code) {
        return rows[place].text;
    }
    const auto row = std::ranges::lower_bound(rows, code, {}, &TextRow<Code>::code);
    if (row == rows.end() || row->code != code) {
        return std::nullopt;
    }
    return row->text;
}

/// A value-to-text table: a compile-time constant whose rows are proved to ascend without duplicates when it
/// is compiled. Made by `ByteTable` or `WordTable` from a list of rows.
template <class Code, std::size_t Count>
class TextTable {
public:
    consteval explicit TextTable(const TextRow<Code> (&rows)[Count]) : rows_(std::to_array(rows)) {
        for (std::size_t i = 1; i < Count; ++i) {
            if (!(rows_[i - 1].code < rows_[i].code)) {
                throw "the rows of a text table must ascend without duplicates";
            }
        }
    }

    /// The text of `code`; no value when the table does not hold it.
    [[nodiscard]] constexpr std::optional<std::string_view> Find(Code code) const {
        return FindText(Rows(), code);
    }

    /// The text of `code`; empty when the table does not hold it.
    [[nodiscard]] constexpr std::string_view operator[](Code code) const {
        return Find(code).value_or(std::string_view{});
    }

    [[nodiscard]] constexpr std::span<const TextRow<Code>> Rows() const { return rows_; }

private:
    std::array<TextRow<Code>, Count> rows_;
};

/// A table keyed by a byte; its argument reads like the list in the documentation, one row a line.
template <std::size_t Count>
[[nodiscard]] consteval TextTable<std::uint8_t, Count> ByteTable(const TextRow<std::uint8_t> (&rows)[Count]) {
    return TextTable<std::uint8_t, Count>(rows);
}

/// A table keyed by a 16-bit word.
template <std::size_t Count>
[[nodiscard]] consteval TextTable<std::uint16_t, Count> WordTable(
    const TextRow<std::uint16_t> (&rows)[Count]) {
    return TextTable<std::uint16_t, Count>(rows);
}

}  // namespace SMBIOS::Common
