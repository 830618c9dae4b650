#pragma once

#include <vector>

#include "manager/decoded_table.h"
#include "smbios-inspect/departures/departure.h"
#include "smbios-inspect/departures/pairing.h"

namespace SMBIOS::Inspect::Departures {

/// What the library made of a structure.
struct LibraryStructure {
    Manager::Types::StructureTypes key;
    const Structures::BaseStructure& decoder;
    Manager::SmbiosVersionIndex version;  ///< that the library takes the table for
    bool isVersionListed;                 ///< whether that is the one that the table claims
};

/// What the comparison of one structure leaves for that of the next.
struct ComparisonMemory {
    /// A departure that was told.
    struct Told {
        const Standard::FieldRow* row;
        const char* label;
    };

    Pairings pairings;
    std::vector<LibraryField> fields;
    std::vector<Told> told;
};

/// Hands the values that depart to `visitor`. Of a code and its word, which people read in one line, it is
/// the code only when both depart.
void CompareStructure(const Standard::Structure& structure,
                      const LibraryStructure& library,
                      ComparisonMemory& memory,
                      DepartureVisitor& visitor);

}  // namespace SMBIOS::Inspect::Departures
