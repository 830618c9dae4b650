#include "smbios-inspect/output/field_block.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kColumnGap = 2;
constexpr std::string_view kMark = " *";

std::size_t LabelWidth(const FieldTexts& texts) {
    std::size_t width = 0;
    for (const FieldTexts::Line& line : texts.Lines()) {
        width = std::max(width, line.label.size());
    }
    return width;
}

}  // namespace

void FieldPrinter::Print(const FieldTexts& texts) {
    AppendFields(texts);
    HandOver();
}

void FieldPrinter::PrintBlock(std::string_view heading, const FieldTexts& texts) {
    AppendEmphasised(heading, Emphasis::heading, style_, page_);
    page_.Append('\n');
    AppendFields(texts);
    HandOver();
}

void FieldPrinter::AppendFields(const FieldTexts& texts) {
    const std::size_t start = kIndent + LabelWidth(texts) + kColumnGap;
    const bool isPlain = style_.width == 0 && !style_.colour;
    for (std::size_t i = 0; i < texts.Lines().size(); ++i) {
        if (isPlain) {
            AppendPlainly(texts.Lines()[i], texts.Words(i), start);
        } else {
            AppendWrapped(texts.Lines()[i], texts.Words(i), start);
        }
    }
}

/// Where there is no terminal: nothing is wrapped or coloured.
void FieldPrinter::AppendPlainly(const FieldTexts::Line& line, std::string_view words, std::size_t start) {
    const std::size_t begin = page_.Size();
    page_.AppendBlanks(start);
    if (line.isFirst) {
        page_.Overwrite(begin + kIndent, line.label);
    }
    AppendPrintable(words, page_);
    if (line.isMarked) {
        page_.Append(kMark);
    }
    page_.CutTrailingBlanks();
    page_.Append('\n');
}

void FieldPrinter::AppendWrapped(const FieldTexts::Line& line, std::string_view words, std::size_t start) {
    const Emphasis emphasis = line.isFailure ? Emphasis::failure : Emphasis::none;
    const std::string text = Printable(words).append(line.isMarked ? kMark : "");
    const LabelledLines labelled = BesideLabel(text, start, style_.width);
    std::string label(line.isFirst ? kIndent : 0, ' ');
    label += line.isFirst ? line.label : "";
    if (labelled.isBelow && !label.empty()) {
        page_.Append(label);
        page_.Append('\n');
        label.clear();
    }
    for (const std::string& each : labelled.lines) {
        label.resize(labelled.indent, ' ');
        page_.Append(WithoutTrailingBlanks(label + Emphasised(each, emphasis, style_)));
        page_.Append('\n');
        label.clear();
    }
}

void FieldPrinter::HandOver() {
    output_ << page_.Text();
    page_.Clear();
}

}  // namespace SMBIOS::Inspect
