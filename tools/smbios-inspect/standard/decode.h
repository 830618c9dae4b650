#pragma once

#include <string>

#include "smbios-inspect/standard/field.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Standard {

/// Hands the fields that the standard has for the structure's type to `visitor`, in the standard's order:
/// every one that the structure is long enough for, whatever version its table claims. None for a type that
/// the standard does not define.
void VisitFields(const Structure& structure, FieldVisitor& visitor);

/// Whether the standard defines the fields of this type.
[[nodiscard]] bool IsDescribed(std::uint8_t type) noexcept;

/// What keeps the structure from being whole, as a sentence for people; empty when nothing does.
[[nodiscard]] std::string RemarkOn(const Structure& structure);

}  // namespace SMBIOS::Inspect::Standard
