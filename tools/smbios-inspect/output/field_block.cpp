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
        width = std::max(width, field.label.size());
    }
    return width;
}

}  // namespace

void FieldPrinter::Print(const std::vector<FieldText>& fields) {
    page_.clear();
    AppendFields(fields);
    output_ << page_;
}

void FieldPrinter::PrintBlock(std::string_view heading, const std::vector<FieldText>& fields) {
    page_.clear();
    AppendEmphasised(heading, Emphasis::heading, style_, page_);
    page_ += '\n';
    AppendFields(fields);
    output_ << page_;
}

void FieldPrinter::AppendFields(const std::vector<FieldText>& fields) {
    const std::size_t start = kIndent + LabelWidth(fields) + kColumnGap;
    const bool isPlain = style_.width == 0 && !style_.colour;
    for (const FieldText& field : fields) {
        if (isPlain) {
            AppendPlainly(field, start);
        } else {
            AppendWrapped(field, start);
        }
    }
}

/// Where there is no terminal: nothing is wrapped or coloured.
void FieldPrinter::AppendPlainly(const FieldText& field, std::size_t start) {
    std::string_view label = field.label;
    std::string_view mark = field.isMarked ? " *" : "";
    for (const std::string& text : field.lines) {
        const std::size_t begin = page_.size();
        page_.append(start, ' ');
        label.copy(&page_[begin + kIndent], label.size());
        AppendPrintable(text, page_);
        page_ += std::exchange(mark, "");
        while (page_.ends_with(' ')) {
            page_.pop_back();
        }
        page_ += '\n';
        label = "";
    }
}

void FieldPrinter::AppendWrapped(const FieldText& field, std::size_t start) {
    const Emphasis emphasis = field.isFailure ? Emphasis::failure : Emphasis::none;
    std::string label = std::string(kIndent, ' ').append(field.label);
    std::string_view mark = field.isMarked ? " *" : "";
    for (const std::string& text : field.lines) {
        const LabelledLines labelled =
            BesideLabel(Printable(text).append(std::exchange(mark, "")), start, style_.width);
        if (labelled.isBelow && !label.empty()) {
            page_.append(label) += '\n';
            label.clear();
        }
        for (const std::string& line : labelled.lines) {
            label.resize(labelled.indent, ' ');
            AppendEmphasised(line, emphasis, style_, label);
            page_.append(WithoutTrailingBlanks(label)) += '\n';
            label.clear();
        }
    }
}

}  // namespace SMBIOS::Inspect
