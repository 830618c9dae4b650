#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// What a list of one kind of structure leaves out.
struct UnlistedStructures {
    std::size_t listed;
    std::size_t total;
    std::string noun;        ///< "processor"
    std::string identifier;  ///< what the library tells them apart by, with its article
    unsigned type;

    /// Number of structures without a row; WMI may know of more rows than there are structures.
    [[nodiscard]] std::size_t Count() const noexcept { return listed < total ? total - listed : 0; }
};

/// Says in a sentence that the table holds more structures than are listed, and how to see them all; nothing
/// when it does not.
void PrintUnlistedNote(const UnlistedStructures& unlisted,
                       const Request& request,
                       const OutputStyle& style,
                       std::ostream& output);

}  // namespace SMBIOS::Inspect
