#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "manager/structure_types.h"
#include "smbios-inspect/departures/reasons.h"
#include "smbios-inspect/standard/description.h"
#include "structures/base_structure.h"

namespace SMBIOS::Inspect::Departures {

/// A value that the library gives otherwise than the standard. Valid only while it is visited.
struct Departure {
    const Standard::Structure& structure;
    std::string_view field;           ///< the library's name
    const char* label;                ///< of the line in which people find it; null when there is none
    const Standard::FieldRow* row;    ///< the standard's field; null when it is none of a type's
    const Standard::Value* standard;  ///< null when the standard gives none
    Manager::Types::StructureTypes key;
    const Structures::BaseStructure* decoder;  ///< null when the library does not have the structure
    std::size_t index;                         ///< of the field in the decoder's record
    ReasonId reason;
};

/// Is handed departures in table order, those of one structure one behind the other.
class DepartureVisitor {
public:
    DepartureVisitor() = default;
    DepartureVisitor(const DepartureVisitor&) = delete;
    DepartureVisitor& operator=(const DepartureVisitor&) = delete;
    virtual ~DepartureVisitor() = default;

    virtual void Visit(const Departure& departure) = 0;

    /// Whether it looks at the standard's values and at the reasons, each of which may take another reading
    /// of the structure. They need not be told to one that does not.
    [[nodiscard]] virtual bool WantsDetails() const noexcept { return true; }
};

}  // namespace SMBIOS::Inspect::Departures
