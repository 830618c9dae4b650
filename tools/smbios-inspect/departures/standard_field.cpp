#include "smbios-inspect/departures/standard_field.h"

#include <algorithm>

#include "smbios-inspect/standard/decode.h"
#include "smbios-inspect/standard/types.h"

namespace SMBIOS::Inspect::Departures {

using Standard::FieldRow;
using Standard::Structure;
using Standard::Value;

namespace {

const FieldRow* RowNamed(std::string_view name, std::span<const FieldRow> rows) noexcept {
    const auto row = std::ranges::find(rows, name, &FieldRow::name);
    return row == rows.end() ? nullptr : &*row;
}

/// Keeps the value of one field of the structure itself.
class ValueKeeper final : public Standard::FieldVisitor {
public:
    explicit ValueKeeper(const FieldRow& row) noexcept : row_(row) {}

    [[nodiscard]] bool Wants(Standard::ValueKind kind) const noexcept override {
        return kind == row_.form.kind;
    }

    void Visit(const Standard::Field& field) override {
        if (field.name == row_.name && field.place.group.empty()) {
            value_ = field.value;
        }
    }

    [[nodiscard]] std::optional<Value> Take() { return std::move(value_); }

private:
    const FieldRow& row_;
    std::optional<Value> value_;
};

}  // namespace

StandardField FindStandardField(std::uint8_t type, std::string_view name) noexcept {
    const Standard::TypeDescription* description = Standard::DescriptionOf(type);
    if (description == nullptr) {
        return {};
    }
    if (const FieldRow* row = RowNamed(name, description->rows)) {
        return {row, false};
    }
    for (const Standard::GroupTable& group : description->groups) {
        const FieldRow* row = group.group.empty() ? RowNamed(name, group.rows) : nullptr;
        if (row != nullptr) {
            return {row, true};
        }
    }
    return {};
}

std::optional<Value> ReadStandardField(const Structure& structure, const StandardField& field) {
    if (field.row == nullptr) {
        return std::nullopt;
    }
    if (field.isBehindGroup) {
        ValueKeeper keeper(*field.row);
        Standard::VisitFields(structure, keeper);
        return keeper.Take();
    }
    if (!field.IsWithin(structure)) {
        return std::nullopt;
    }
    return field.row->form.read({structure, *field.row, 0});
}

}  // namespace SMBIOS::Inspect::Departures
