#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/lines.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// A field as people read it. Texts of the firmware are as they are, not yet safe for a terminal.
struct FieldText {
    std::string_view label;  ///< of ASCII
    Lines lines;
    bool isFailure;
    bool isMarked = false;  ///< with a star behind its first line
};

/// Prints fields: labels in one column, their lines in another, every text made safe for a terminal. Keeps
/// the memory of a page for the next.
class FieldPrinter {
public:
    FieldPrinter(const OutputStyle& style, std::ostream& output) noexcept : style_(style), output_(output) {}

    void Print(const std::vector<FieldText>& fields);

    /// The same below a heading.
    void PrintBlock(std::string_view heading, const std::vector<FieldText>& fields);

private:
    void AppendFields(const std::vector<FieldText>& fields);
    void AppendPlainly(const FieldText& field, std::size_t start);
    void AppendWrapped(const FieldText& field, std::size_t start);

    const OutputStyle& style_;
    std::ostream& output_;
    std::string page_;
};

}  // namespace SMBIOS::Inspect
