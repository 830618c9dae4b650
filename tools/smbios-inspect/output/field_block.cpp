#include "smbios-inspect/output/field_block.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kColumnGap = 2;

std::size_t LabelWidth(const std::vector<FieldText>& fields) {
    std::size_t width = 0;
    for (const FieldText& field : fields) {
        width = std::max(width, DisplayWidth(field.label));
    }
    return width;
}

/// Columns left for what stands behind the labels, and never so few that it cannot be read; 0 for no limit.
std::size_t TextWidth(const OutputStyle& style, std::size_t start) {
    constexpr std::size_t kLeast = 20;
    if (style.width == 0) {
        return 0;
    }
    return style.width > start + kLeast ? style.width - start : kLeast;
}

}  // namespace

void PrintFieldBlock(std::string_view heading,
                     const std::vector<FieldText>& fields,
                     const OutputStyle& style,
                     std::ostream& output) {
    const std::size_t labelWidth = LabelWidth(fields);
    const std::size_t start = kIndent + labelWidth + kColumnGap;
    output << Emphasised(heading, Emphasis::heading, style) << '\n';
    for (const FieldText& field : fields) {
        const Emphasis emphasis = field.isFailure ? Emphasis::failure : Emphasis::none;
        std::string label = std::string(kIndent, ' ') + field.label;
        for (const std::string& text : field.lines) {
            for (const std::string& line : WrapWords(Printable(text), TextWidth(style, start))) {
                label.resize(start, ' ');
                output << WithoutTrailingBlanks(label + Emphasised(line, emphasis, style)) << '\n';
                label.clear();
            }
        }
    }
}

}  // namespace SMBIOS::Inspect
