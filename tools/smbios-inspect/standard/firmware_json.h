#pragma once

#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/standard/field.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Standard {

/// Type, name, handle, length, fields, strings and bytes of a structure, and a remark when it is cut short,
/// as an object. `isQuiet` leaves out the last three. See docs/json.md.
void WriteStructure(const Structure& structure, bool isQuiet, JsonWriter& json);

/// A field's value as an object: the plain one, and its unit, words and items where it has them.
void WriteValue(const Field& field, JsonWriter& json);

}  // namespace SMBIOS::Inspect::Standard
