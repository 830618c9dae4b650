#pragma once

#include <iosfwd>
#include <string>

namespace SMBIOS::Inspect {

/// Draws the machine of the table in use: to the file `target`, as `WriteOutputFile` writes one, or to
/// `output` when that is empty. Throws an exception whose text is for a person.
void DrawPicture(const std::string& target, bool force, std::ostream& output);

}  // namespace SMBIOS::Inspect
