#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "smbios-inspect/standard/field.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Picture {

/// `text` as it can be drawn: printable, blanks at its ends removed and others made single, and no longer
/// than any line of a picture.
[[nodiscard]] std::string Drawable(std::string_view text);

/// Fields of a structure by name, for a picture: what says nothing is absent.
class Fields {
public:
    void Add(const Standard::Field& field);

    /// As people read it; empty when the firmware says nothing, or that it knows nothing.
    [[nodiscard]] std::string Text(std::string_view name) const;

    /// The plain value of a number, a code or a handle.
    [[nodiscard]] std::optional<std::uint64_t> Number(std::string_view name) const;

private:
    struct Said {
        std::string_view name;
        std::string text;
        std::optional<std::uint64_t> number;
    };

    [[nodiscard]] const Said* Find(std::string_view name) const noexcept;

    std::vector<Said> said_;
};

/// The fields of a structure, and those of each object that it holds several of.
struct StructureFields {
    Fields own;
    std::vector<Fields> objects;
};

[[nodiscard]] StructureFields FieldsOf(const Standard::Structure& structure);

/// All that the report `firmware` shows of a structure, on several lines. A line that is longer than any
/// standard's string ends with an ellipsis.
[[nodiscard]] std::string TooltipOf(const Standard::Structure& structure);

}  // namespace SMBIOS::Inspect::Picture
