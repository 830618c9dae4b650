#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "smbios-inspect/output/text_page.h"
#include "smbios-inspect/standard/value.h"

namespace SMBIOS::Inspect::Standard {

/// Where a field stands that is part of something a structure holds several of.
struct GroupPlace {
    std::string_view group = {};    ///< name of the list the fields' object is an element of; empty for none
    std::size_t index = 0;          ///< of that object in the list
    std::string_view heading = {};  ///< for people, above the object; empty for none
};

/// A decoded field. Valid only while it is visited.
struct Field {
    std::string_view name;  ///< in programs
    std::string_view
        label;  ///< for people, # for the object's number; empty when another field tells the same
    ValueKind kind;
    std::string_view unit;  ///< of a number, for programs; empty for none
    GroupPlace place;
    std::size_t offset;  ///< where it begins in the structure
    std::size_t width;   ///< in bytes; 0 for a value that stands elsewhere
    const Value& value;
};

/// Appends a label or a heading, with the object's number, from 1, in place of #.
inline void AppendNumbered(std::string_view label, std::size_t index, TextPage& page) {
    const std::size_t mark = label.find('#');
    page.Append(label.substr(0, mark));
    if (mark != std::string_view::npos) {
        page.AppendNumber(index + 1);
        page.Append(label.substr(mark + 1));
    }
}

/// The same by itself.
[[nodiscard]] inline std::string Numbered(std::string_view label, std::size_t index) {
    TextPage page;
    AppendNumbered(label, index, page);
    return std::string(page.Text());
}

/// Is handed the fields of a structure, in order. Fields of one object of a group come one behind the other.
class FieldVisitor {
public:
    FieldVisitor() = default;
    FieldVisitor(const FieldVisitor&) = delete;
    FieldVisitor& operator=(const FieldVisitor&) = delete;
    virtual ~FieldVisitor() = default;

    /// Fields of other kinds are neither read nor visited.
    [[nodiscard]] virtual bool Wants(ValueKind) const noexcept { return true; }

    virtual void Visit(const Field& field) = 0;
};

}  // namespace SMBIOS::Inspect::Standard
