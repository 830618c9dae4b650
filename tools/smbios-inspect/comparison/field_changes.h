#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "smbios-inspect/comparison/comparison.h"
#include "smbios-inspect/standard/field.h"

namespace SMBIOS::Inspect::Comparing {

/// A decoded field that outlives its visit.
struct KeptField {
    std::string_view name;
    std::string_view label;
    Standard::ValueKind kind;
    std::string_view unit = {};
    Standard::GroupPlace place = {};
    std::size_t offset = 0;
    std::size_t width = 0;
    Standard::Value value = {};

    [[nodiscard]] Standard::Field View() const noexcept {
        return {name, label, kind, unit, place, offset, width, value};
    }
};

/// The fields of a structure, in the standard's order.
[[nodiscard]] std::vector<KeptField> FieldsOf(const Standard::Structure& structure);

/// A field that differs; a structure that is too short for it has none.
struct FieldChange {
    std::optional<KeptField> before;
    std::optional<KeptField> after;

    [[nodiscard]] const KeptField& Either() const noexcept { return before ? *before : *after; }
};

/// What differs between a structure and its partner: fields by their plain values and their texts, handles by
/// what they lead to; at the end "bytes", "strings" and "remark" for what no field shows. Empty when they say
/// the same.
[[nodiscard]] std::vector<FieldChange> ChangesOf(const Comparison& comparison, Index before, Index after);

}  // namespace SMBIOS::Inspect::Comparing
