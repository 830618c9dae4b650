#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/output_style.h"

namespace SMBIOS::Inspect {

/// `text` made safe for a terminal: control bytes and bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string Printable(std::string_view text);

/// Number of terminal columns that printable UTF-8 takes, one for each character.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text) noexcept;

/// Printable text cut between words into lines of at most `width` columns, 0 for no limit. A longer word has
/// a line of its own. There is at least one line, and none ends with a blank.
[[nodiscard]] std::vector<std::string> WrapWords(std::string_view text, std::size_t width);

/// What colour sets off from the rest.
enum class Emphasis : std::uint8_t { heading, warning };

/// `text` in the emphasis's colour, if the style has colours.
[[nodiscard]] std::string Emphasised(std::string_view text, Emphasis emphasis, const OutputStyle& style);

/// Prints a sentence, which may come from the firmware, on as many lines as it takes.
void PrintSentence(std::string_view text, const OutputStyle& style, std::ostream& output);

/// An aligned table with a line of headings.
class TextTable {
public:
    /// `textWhenEmpty` is printed in place of a table without rows.
    explicit TextTable(std::vector<std::string> headings, std::string textWhenEmpty = {});

    /// Adds a row; an empty cell is shown as "-". There are as many cells as headings.
    void Add(std::vector<std::string> cells);

    /// One line a row; where the terminal is too narrow for that, one block of lines a row.
    void Print(const OutputStyle& style, std::ostream& output) const;

private:
    using Row = std::vector<std::string>;

    [[nodiscard]] std::vector<std::size_t> ColumnWidths() const;
    void PrintLine(const Row& row,
                   const std::vector<std::size_t>& widths,
                   const OutputStyle& style,
                   std::ostream& output) const;
    void PrintBlock(const Row& row, const OutputStyle& style, std::ostream& output) const;

    Row headings_;
    std::vector<Row> rows_;
    std::string textWhenEmpty_;
};

}  // namespace SMBIOS::Inspect
