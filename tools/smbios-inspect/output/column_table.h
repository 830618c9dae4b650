#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

/// An aligned table with a line of headings.
class ColumnTable {
public:
    /// `textWhenEmpty` is printed in place of a table without rows.
    explicit ColumnTable(std::vector<std::string> headings, std::string textWhenEmpty = {});

    /// Adds a row; an empty cell is shown as "-". There are as many cells as headings.
    void Add(std::vector<std::string> cells);

    /// One line a row; where the terminal is too narrow for that, one block of lines a row. Without a
    /// terminal a cell of more than 60 columns is cut there.
    void Print(const OutputStyle& style, std::ostream& output) const;

private:
    using Row = std::vector<std::string>;

    [[nodiscard]] std::vector<std::size_t> ColumnWidths(const OutputStyle& style) const;
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
