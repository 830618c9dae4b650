#pragma once

#include <cstddef>
#include <iosfwd>
#include <string_view>

#include "smbios-inspect/output/field_texts.h"
#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/output/text_page.h"

namespace SMBIOS::Inspect {

/// Prints fields: labels in one column, their lines in another, every text made safe for a terminal. Keeps
/// the memory of a page for the next.
class FieldPrinter {
public:
    FieldPrinter(const OutputStyle& style, std::ostream& output) noexcept : style_(style), output_(output) {}

    void Print(const FieldTexts& texts);

    /// The same below a heading.
    void PrintBlock(std::string_view heading, const FieldTexts& texts);

private:
    void AppendFields(const FieldTexts& texts);
    void AppendPlainly(const FieldTexts::Line& line, std::string_view words, std::size_t start);
    void AppendWrapped(const FieldTexts::Line& line, std::string_view words, std::size_t start);
    void HandOver();

    const OutputStyle& style_;
    std::ostream& output_;
    TextPage page_;
};

}  // namespace SMBIOS::Inspect
