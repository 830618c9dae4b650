#pragma once

#include <cstddef>
#include <span>

#include "smbios-inspect/standard/description.h"
#include "smbios-inspect/standard/field.h"

namespace SMBIOS::Inspect::Standard {

/// Hands those rows that a structure is long enough for to a visitor.
class RowVisitor {
public:
    RowVisitor(const Structure& structure, FieldVisitor& visitor) noexcept
        : structure_(structure), area_(structure.Area()), visitor_(visitor) {}

    [[nodiscard]] const Structures::FormattedArea& Area() const noexcept { return area_; }
    [[nodiscard]] const Structure& Whole() const noexcept { return structure_; }

    /// The rows, their offsets counted from `base`.
    void VisitRows(std::span<const FieldRow> rows, std::size_t base = 0, const GroupPlace& place = {});

    /// The rows of object number `index`, from 0, of a group; the object begins at `base`.
    void VisitObject(const GroupTable& group, std::size_t index, std::size_t base);

    /// The only row of object number `index` of a group, with a value that is not in the formatted area.
    void VisitValue(const GroupTable& group, std::size_t index, const Value& value);

private:
    const Structure& structure_;
    Structures::FormattedArea area_;
    FieldVisitor& visitor_;
};

}  // namespace SMBIOS::Inspect::Standard
