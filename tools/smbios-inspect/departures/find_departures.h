#pragma once

#include <cstdint>
#include <span>

#include "manager/decoded_table.h"
#include "smbios-inspect/departures/departure.h"

namespace SMBIOS::Inspect::Departures {

/// Hands every value that the library gives otherwise than the standard to `visitor`. `rawTable` begins with
/// the 8-byte header, `table` is what the library decoded from it. Takes time linear in the table. Throws
/// std::bad_alloc, and what the visitor throws.
void FindDepartures(std::span<const std::uint8_t> rawTable,
                    const Manager::DecodedTable& table,
                    DepartureVisitor& visitor);

}  // namespace SMBIOS::Inspect::Departures
