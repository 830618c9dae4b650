#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// What is said of one thing, part by part; an empty part says nothing.
using ItemParts = std::vector<std::string>;

/// Prints labels with their items beside them. Equal items share a line, and no word is broken that fits the
/// terminal.
class ItemPrinter {
public:
    ItemPrinter(const OutputStyle& style, std::ostream& output) : style_(style), output_(output) {}

    /// Prints the items in the order in which each turns up first.
    void Print(std::string_view label, const std::vector<ItemParts>& items);

    /// Prints a line of its own below what was printed last.
    void PrintRemark(const std::string& text);
    void PrintWarning(const std::string& text);

private:
    void PrintItem(ItemParts parts, std::size_t count);
    void PrintLine(const std::string& text);
    void PrintBelowLabel(const std::string& line);
    [[nodiscard]] bool HasRoomFurtherLeftOnly(const std::string& line) const;
    [[nodiscard]] std::vector<std::string> Lines(const ItemParts& parts) const;
    [[nodiscard]] std::size_t ValueWidth() const;

    const OutputStyle& style_;
    std::ostream& output_;
    std::string_view label_;
};

}  // namespace SMBIOS::Inspect
