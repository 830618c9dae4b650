#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Inspect {

/// `text` made safe for a terminal: control bytes and bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string Printable(std::string_view text);

/// Number of terminal columns that printable UTF-8 takes, one for each character.
[[nodiscard]] std::size_t DisplayWidth(std::string_view text) noexcept;

/// An aligned table with a line of headings.
class TextTable {
public:
    explicit TextTable(std::vector<std::string> headings);

    /// Adds a row; an empty cell is shown as "-". There are as many cells as headings.
    void Add(std::vector<std::string> cells);

    void Print(std::ostream& output) const;

private:
    std::vector<std::vector<std::string>> lines_;
};

}  // namespace SMBIOS::Inspect
