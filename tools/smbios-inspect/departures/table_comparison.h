#pragma once

#include "manager/smbios_version.h"
#include "smbios-inspect/departures/compare_structure.h"
#include "smbios-inspect/departures/departure.h"

namespace SMBIOS::Inspect::Departures {

/// Compares the structures of one table.
class TableComparison {
public:
    /// The version that the table claims, and the one that the library takes it for.
    TableComparison(Standard::TableVersion claimed, Manager::SmbiosVersionIndex taken) noexcept;

    /// Hands what departs in one structure to `visitor`: as the standard cuts it out of the table, and as the
    /// library decoded it under `key`. One of the two may be null, when only the other has the structure.
    void Compare(const Standard::Structure* structure,
                 Manager::Types::StructureTypes key,
                 const Structures::BaseStructure* decoder,
                 DepartureVisitor& visitor);

private:
    Manager::SmbiosVersionIndex version_;
    bool isVersionListed_;
    ComparisonMemory memory_;
};

}  // namespace SMBIOS::Inspect::Departures
