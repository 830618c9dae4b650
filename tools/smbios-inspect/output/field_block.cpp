#include "smbios-inspect/output/field_block.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>

#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kColumnGap = 2;

std::size_t LabelWidth(const std::vector<FieldText>& fields) {
    std::size_t width = 0;
    for (const FieldText& field : fields) {
        width = field.label.size() <= width ? width : std::max(width, DisplayWidth(field.label));
    }
    return width;
}

/// Where there is no terminal: nothing is wrapped or coloured.
void PrintPlainly(const std::vector<FieldText>& fields, std::size_t start, std::ostream& output) {
    constexpr std::size_t kUsualPage = 2048;
    std::string page;
    page.reserve(kUsualPage);
    for (const FieldText& field : fields) {
        std::string_view label = field.label;
        std::string_view mark = field.isMarked ? " *" : "";
        for (const std::string& text : field.lines) {
            page.append(kIndent, ' ').append(label).append(start - kIndent - label.size(), ' ');
            AppendPrintable(text, page);
            page += std::exchange(mark, "");
            page.resize(WithoutTrailingBlanks(page).size());
            page += '\n';
            label = "";
        }
    }
    output << page;
}

}  // namespace

void PrintFields(const std::vector<FieldText>& fields, const OutputStyle& style, std::ostream& output) {
    const std::size_t labelWidth = LabelWidth(fields);
    const std::size_t start = kIndent + labelWidth + kColumnGap;
    if (style.width == 0 && !style.colour) {
        PrintPlainly(fields, start, output);
        return;
    }
    for (const FieldText& field : fields) {
        const Emphasis emphasis = field.isFailure ? Emphasis::failure : Emphasis::none;
        std::string label = std::string(kIndent, ' ').append(field.label);
        std::string_view mark = field.isMarked ? " *" : "";
        for (const std::string& text : field.lines) {
            const LabelledLines labelled =
                BesideLabel(Printable(text).append(std::exchange(mark, "")), start, style.width);
            if (labelled.isBelow && !label.empty()) {
                output << label << '\n';
                label.clear();
            }
            for (const std::string& line : labelled.lines) {
                label.resize(labelled.indent, ' ');
                output << WithoutTrailingBlanks(label + Emphasised(line, emphasis, style)) << '\n';
                label.clear();
            }
        }
    }
}

void PrintFieldBlock(std::string_view heading,
                     const std::vector<FieldText>& fields,
                     const OutputStyle& style,
                     std::ostream& output) {
    output << Emphasised(heading, Emphasis::heading, style) << '\n';
    PrintFields(fields, style, output);
}

}  // namespace SMBIOS::Inspect
