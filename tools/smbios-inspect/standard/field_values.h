#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "smbios-inspect/standard/field.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Standard {

/// The fields of one structure by their names, without those of the objects that it lists. Valid only while
/// the structure's table is.
class FieldValues final : private FieldVisitor {
public:
    explicit FieldValues(const Structure& structure);

    /// A text, a number in decimal, or what a code means; empty when the structure has no such field or the
    /// firmware gives no value.
    [[nodiscard]] std::string TextOf(std::string_view name) const;

    /// The same, but nothing where the words say nothing, like "Unknown".
    [[nodiscard]] std::string TellingTextOf(std::string_view name) const;

    /// The plain number of a field; no value when there is none.
    [[nodiscard]] std::optional<std::uint64_t> NumberOf(std::string_view name) const;

private:
    struct NamedValue {
        std::string_view name;
        ValueKind kind;
        Value value;
    };

    void Visit(const Field& field) override;
    [[nodiscard]] const NamedValue* Find(std::string_view name) const noexcept;

    std::vector<NamedValue> values_;
};

}  // namespace SMBIOS::Inspect::Standard
