#pragma once

#include "smbios-inspect/field.h"
#include "structures/structure_record.h"
#include "structures/type_16.h"
#include "structures/type_17.h"
#include "structures/type_19.h"
#include "structures/type_20.h"
#include "structures/type_43.h"
#include "structures/type_7.h"

// The words of fields whose value alone does not say what it means.
namespace SMBIOS::Inspect {

/// The raw bytes of a structure that could not be decoded: nothing else tells what it holds.
[[nodiscard]] Lines RawBytesOfFailure(const Structures::StructureRecord& record);

/// "L1": the record counts from 0.
[[nodiscard]] Lines CacheLevelText(const Structures::Type7::Types::Type7Struct& record);
[[nodiscard]] Lines CacheLocationText(const Structures::Type7::Types::Type7Struct& record);

/// Sizes that count kilobytes or bytes, as the firmware does.
[[nodiscard]] Lines MaximumCapacityText(const Structures::Type16::Types::Type16Struct& record);
[[nodiscard]] Lines DeviceSizeText(const Structures::Type17::Types::Type17Struct& record);

/// Addresses that count kilobytes or bytes, likewise.
[[nodiscard]] Lines ArrayStartText(const Structures::Type19::Types::Type19Struct& record);
[[nodiscard]] Lines ArrayEndText(const Structures::Type19::Types::Type19Struct& record);
[[nodiscard]] Lines DeviceStartText(const Structures::Type20::Types::Type20Struct& record);
[[nodiscard]] Lines DeviceEndText(const Structures::Type20::Types::Type20Struct& record);

/// Without the NULs that fill up a shorter name.
[[nodiscard]] Lines VendorIdText(const Structures::Type43::Types::Type43Struct& record);

}  // namespace SMBIOS::Inspect
