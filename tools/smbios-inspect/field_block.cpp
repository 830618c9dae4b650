#include "smbios-inspect/field_block.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "smbios-inspect/text_table.h"

namespace SMBIOS::Inspect {

namespace {

constexpr std::string_view kBold = "\x1B[1m";
constexpr std::string_view kRed = "\x1B[31m";
constexpr std::string_view kReset = "\x1B[0m";

constexpr std::size_t kIndent = 2;
constexpr std::size_t kColumnGap = 2;

std::string Coloured(std::string_view text, std::string_view colour, const OutputStyle& style) {
    const std::string plain(text);
    return style.colour ? std::string(colour) + plain + std::string(kReset) : plain;
}

/// Number of bytes at the start of `text` that take at most `columns` columns.
std::size_t BytesWithin(std::string_view text, std::size_t columns) {
    std::size_t end = 0;
    std::size_t taken = 0;
    while (end < text.size()) {
        taken += DisplayWidth(text.substr(end, 1));
        if (taken > columns) {
            break;
        }
        ++end;
    }
    return end;
}

std::size_t LabelWidth(const std::vector<FieldText>& fields) {
    std::size_t width = 0;
    for (const FieldText& field : fields) {
        width = std::max(width, DisplayWidth(field.label));
    }
    return width;
}

/// Columns left for what stands behind the labels, and never so few that it cannot be read.
std::size_t TextWidth(const OutputStyle& style, std::size_t start) {
    constexpr std::size_t kLeast = 20;
    if (style.width == 0) {
        return std::string::npos;
    }
    return style.width > start + kLeast ? style.width - start : kLeast;
}

}  // namespace

Lines Wrapped(std::string_view text, std::size_t width) {
    Lines lines;
    for (std::size_t fitting = BytesWithin(text, width); fitting < text.size();
         fitting = BytesWithin(text, width)) {
        const std::size_t blank = text.substr(0, fitting + 1).find_last_of(' ');
        const bool hasBlank = blank != std::string_view::npos && blank != 0;
        lines.emplace_back(text.substr(0, hasBlank ? blank : fitting));
        text.remove_prefix(hasBlank ? blank + 1 : fitting);
    }
    lines.emplace_back(text);
    return lines;
}

void PrintFieldBlock(std::string_view heading,
                     const std::vector<FieldText>& fields,
                     const OutputStyle& style,
                     std::ostream& output) {
    const std::size_t labelWidth = LabelWidth(fields);
    const std::size_t start = kIndent + labelWidth + kColumnGap;
    output << Coloured(heading, kBold, style) << '\n';
    for (const FieldText& field : fields) {
        std::string label = field.label;
        for (const std::string& text : field.lines) {
            for (const std::string& line : Wrapped(Printable(text), TextWidth(style, start))) {
                label.resize(labelWidth, ' ');
                output << std::string(kIndent, ' ') << label << std::string(kColumnGap, ' ')
                       << (field.isFailure ? Coloured(line, kRed, style) : line) << '\n';
                label.clear();
            }
        }
    }
}

}  // namespace SMBIOS::Inspect
