#include "smbios-inspect/output/column_table.h"

#include <algorithm>
#include <numeric>
#include <ostream>
#include <string_view>
#include <utility>

namespace SMBIOS::Inspect {

namespace {

constexpr std::string_view kColumnGap = "  ";

/// Columns of a cell where there is no terminal: one long text would widen every row.
constexpr std::size_t kWidestCell = 60;

std::string CellText(const std::string& cell, const OutputStyle& style) {
    return style.width == 0 ? CutTo(kWidestCell, cell) : cell;
}

std::string Blanks(std::size_t count) {
    return std::string(count, ' ');
}

/// `text` with blanks behind it up to `width` columns; only the text itself is set off.
std::string Padded(std::string_view text, std::size_t width, const OutputStyle& style, bool isHeading) {
    const std::string shown = isHeading ? Emphasised(text, Emphasis::heading, style) : std::string(text);
    return shown + Blanks(width - DisplayWidth(text));
}

}  // namespace

ColumnTable::ColumnTable(std::vector<std::string> headings, std::string textWhenEmpty)
    : headings_(std::move(headings)), textWhenEmpty_(std::move(textWhenEmpty)) {}

void ColumnTable::Add(std::vector<std::string> cells) {
    for (std::string& cell : cells) {
        cell = cell.empty() ? "-" : Printable(cell);
    }
    rows_.push_back(std::move(cells));
}

void ColumnTable::Print(const OutputStyle& style, std::ostream& output) const {
    if (rows_.empty() && !textWhenEmpty_.empty()) {
        PrintSentence(textWhenEmpty_, style, output);
        return;
    }
    const std::vector<std::size_t> widths = ColumnWidths(style);
    const std::size_t gaps = kColumnGap.size() * (widths.size() - 1);
    const std::size_t lineWidth = std::accumulate(widths.begin(), widths.end(), gaps);
    if (style.width == 0 || lineWidth <= style.width) {
        PrintLine(headings_, widths, style, output);
        for (const Row& row : rows_) {
            PrintLine(row, widths, style, output);
        }
        return;
    }
    for (const Row& row : rows_) {
        output << (&row == &rows_.front() ? "" : "\n");
        PrintBlock(row, style, output);
    }
}

std::vector<std::size_t> ColumnTable::ColumnWidths(const OutputStyle& style) const {
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < headings_.size(); ++column) {
        std::size_t width = DisplayWidth(headings_[column]);
        for (const Row& row : rows_) {
            width = std::max(width, DisplayWidth(CellText(row[column], style)));
        }
        widths.push_back(width);
    }
    return widths;
}

void ColumnTable::PrintLine(const Row& row,
                            const std::vector<std::size_t>& widths,
                            const OutputStyle& style,
                            std::ostream& output) const {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
        line += Padded(CellText(row[column], style), widths[column], style, &row == &headings_);
        line += kColumnGap;
    }
    output << WithoutTrailingBlanks(line) << '\n';
}

void ColumnTable::PrintBlock(const Row& row, const OutputStyle& style, std::ostream& output) const {
    std::size_t labelWidth = 0;
    for (const std::string& heading : headings_) {
        labelWidth = std::max(labelWidth, DisplayWidth(heading));
    }
    const std::size_t indent = labelWidth + kColumnGap.size();
    for (std::size_t column = 0; column < row.size(); ++column) {
        const LabelledLines labelled = BesideLabel(row[column], indent, style.width);
        std::string label = Padded(headings_[column], indent, style, true);
        if (labelled.isBelow) {
            output << WithoutTrailingBlanks(label) << '\n';
            label = Blanks(labelled.indent);
        }
        for (const std::string& line : labelled.lines) {
            output << WithoutTrailingBlanks(label + line) << '\n';
            label = Blanks(labelled.indent);
        }
    }
}

}  // namespace SMBIOS::Inspect
