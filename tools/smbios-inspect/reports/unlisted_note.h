#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// What a list of one kind of structure leaves out.
struct UnlistedStructures {
    std::size_t listed;
    std::size_t total;
    std::string noun;        ///< "processor"
    std::string identifier;  ///< what the library tells them apart by, with its article
    unsigned type;
};

/// Says in a sentence that the table holds more structures than are listed; nothing when it does not.
void PrintUnlistedNote(const UnlistedStructures& unlisted, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
