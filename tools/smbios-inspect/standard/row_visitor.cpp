#include "smbios-inspect/standard/row_visitor.h"

namespace SMBIOS::Inspect::Standard {

namespace {

GroupPlace PlaceOf(const GroupTable& group, std::size_t index) noexcept {
    return {group.group, index, group.heading};
}

}  // namespace

void RowVisitor::VisitRows(std::span<const FieldRow> rows, std::size_t base, const GroupPlace& place) {
    for (const FieldRow& row : rows) {
        if (base + row.offset + row.width <= area_.Size() && visitor_.Wants(row.form.kind)) {
            const Value value = row.form.read({structure_, row, base});
            visitor_.Visit({row.name,
                            row.label,
                            row.form.kind,
                            row.form.unit,
                            place,
                            base + row.offset,
                            row.width,
                            value});
        }
    }
}

void RowVisitor::VisitObject(const GroupTable& group, std::size_t index, std::size_t base) {
    VisitRows(group.rows, base, PlaceOf(group, index));
}

void RowVisitor::VisitValue(const GroupTable& group, std::size_t index, const Value& value) {
    const FieldRow& row = group.rows.front();
    if (visitor_.Wants(row.form.kind)) {
        visitor_.Visit(
            {row.name, row.label, row.form.kind, row.form.unit, PlaceOf(group, index), 0, 0, value});
    }
}

}  // namespace SMBIOS::Inspect::Standard
