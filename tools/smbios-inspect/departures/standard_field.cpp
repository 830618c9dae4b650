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
    ValueKeeper(const FieldRow& row, FieldReading& reading) noexcept : row_(row), reading_(reading) {}

    [[nodiscard]] bool Wants(Standard::ValueKind kind) const noexcept override {
        return kind == row_.form.kind;
    }

    void Visit(const Standard::Field& field) override {
        if (field.name == row_.name && field.place.group.empty()) {
            reading_.value = field.value;
            reading_.isThere = true;
        }
    }

private:
    const FieldRow& row_;
    FieldReading& reading_;
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

FieldReading::FieldReading(const Structure& structure, const StandardField& field)
    : isThere(field.row != nullptr && !field.isBehindGroup && field.IsWithin(structure)),
      value(isThere ? field.row->form.read({structure, *field.row, 0}) : Value()) {
    if (field.isBehindGroup) {
        ValueKeeper keeper(*field.row, *this);
        Standard::VisitFields(structure, keeper);
    }
}

}  // namespace SMBIOS::Inspect::Departures
